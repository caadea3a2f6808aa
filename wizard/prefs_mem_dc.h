#pragma once

#include "framework/afxwin.h"

/// Draws into a bitmap and copies it to the screen in one operation in the
/// destructor, so that a window paints without flicker. Coordinates are those of
/// the target. Text is drawn into the bitmap too. On a printer it draws
/// directly: nothing flickers there, and a bitmap would reduce the resolution.
class CPrefsMemDC : public CDC
{
  public:
    /// Covers `rectangle` of the target, which must outlive this object.
    CPrefsMemDC(CDC* target, const CRect& rectangle);
    ~CPrefsMemDC() override;

  private:
    CDC* m_target;
    CRect m_rectangle;
    CBitmap m_bitmap;
    HGDIOBJ m_previousBitmap = nullptr; ///< null while drawing directly
};
