#pragma once

#include "framework/afxwin.h"

/// Draws into memory and copies everything to the screen in one transfer when
/// it is destroyed, so that a window paints without flicker. Coordinates are
/// the target's. Text goes the way of all drawing. On a printer it draws
/// directly: nothing flickers there, and a bitmap would lose the resolution.
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
