#include "controls/tool_tip_control.h"

#include "controls/core/tooltip_markup.h"
#include "controls/dialog_app.h"
#include "resources/ids.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CToolTipControl, CWnd)

BEGIN_MESSAGE_MAP(CToolTipControl, CWnd)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_TIMER()
END_MESSAGE_MAP()

namespace
{
constexpr UINT watchPeriod = 5; // milliseconds

// Help texts contain tabs, and ampersands that are not mnemonics. Lines break only
// at the line breaks of the text.
constexpr UINT textFormat = DT_EXPANDTABS | DT_NOPREFIX;

UINT FormatOf(ov::TooltipSection section)
{
    // DT_VCENTER affects single lines only, but descriptions are drawn with it.
    return section == ov::TooltipSection::Description ? textFormat | DT_VCENTER : textFormat;
}

/// Selects a font until the scope ends.
class FontScope
{
  public:
    FontScope(CDC* context, CFont& font) : m_context(context), m_previous(context->SelectObject(&font)) {}
    ~FontScope() { m_context->SelectObject(m_previous); }
    FontScope(const FontScope&) = delete;
    FontScope& operator=(const FontScope&) = delete;

  private:
    CDC* m_context;
    CFont* m_previous;
};

ov::Size SizeOfIcon(HICON icon)
{
    ICONINFO info{};
    if (icon == nullptr || !::GetIconInfo(icon, &info))
        return {};
    // A monochrome icon has both masks in one bitmap, one above the other.
    const int images = info.hbmColor != nullptr ? 1 : 2;
    BITMAP bitmap{};
    ::GetObjectW(images == 1 ? info.hbmColor : info.hbmMask, sizeof bitmap, &bitmap);
    ::DeleteObject(info.hbmMask);
    if (info.hbmColor != nullptr)
        ::DeleteObject(info.hbmColor);
    return {bitmap.bmWidth, bitmap.bmHeight / images};
}

TooltipIcon OwnIcon(HICON icon)
{
    return {icon, [](HICON handle) {
                if (handle != nullptr)
                    ::DestroyIcon(handle);
            }};
}

CRect ToRect(const ov::Rect& rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}

COLORREF ColourOf(ov::TooltipSection section)
{
    switch (section) {
    case ov::TooltipSection::Heading:
        return kTooltipHeadingColour;
    case ov::TooltipSection::Description:
        return kTooltipDescriptionColour;
    default:
        return kTooltipVariableColour;
    }
}

CPoint CursorPosition()
{
    CPoint point;
    ::GetCursorPos(&point);
    return point;
}
} // namespace

BOOL CToolTipControl::Create(CWnd* owner, UINT style, UINT secondStyle, CTooltipTextProvider* provider)
{
    m_style = style;
    m_secondStyle = secondStyle;
    m_provider = provider;
    return CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 0, 0, AfxSafeHwnd(owner),
                    nullptr);
}

void CToolTipControl::RegisterControl(const CWnd* control, ov::Text text, HICON icon)
{
    SetEntry(control, std::move(text), OwnIcon(icon));
}

void CToolTipControl::AddTool(const CWnd* control, UINT textId)
{
    // Hundreds of controls have this icon; all share one handle.
    TooltipIcon icon = m_toolIcon.lock();
    if (!icon) {
        icon = OwnIcon(static_cast<HICON>(
            ::LoadImageW(AfxGetResourceHandle(), MAKEINTRESOURCEW(IDI_TOOLTIP), IMAGE_ICON, 0, 0, 0)));
        m_toolIcon = icon;
    }
    SetEntry(control, AfxLoadString(textId), std::move(icon));
}

void CToolTipControl::DelTool(const CWnd* control)
{
    m_entries.erase(AfxSafeHwnd(control));
}

void CToolTipControl::SetEntry(const CWnd* control, ov::Text text, TooltipIcon icon)
{
    if (AfxSafeHwnd(control) == nullptr)
        return;
    ToolTipEntry& entry = m_entries[control->m_hWnd];
    entry.text = std::move(text);
    if (icon)
        entry.icon = std::move(icon);
}

HICON CToolTipControl::GetToolIcon(const CWnd* control) const
{
    const auto found = m_entries.find(AfxSafeHwnd(control));
    return found != m_entries.end() ? found->second.icon.get() : nullptr;
}

ov::Text CToolTipControl::TextOf(const CWnd* control) const
{
    const auto found = m_entries.find(AfxSafeHwnd(control));
    if (found == m_entries.end())
        return {};
    if (found->second.text.empty() && m_provider != nullptr)
        return m_provider->GetTooltipText(found->first);
    return found->second.text;
}

ov::Text CToolTipControl::GetVariableName(const CWnd* control) const
{
    return ov::VariableName(TextOf(control));
}

ov::Text CToolTipControl::GetDescription(const CWnd* control) const
{
    return ov::Description(TextOf(control));
}

void CToolTipControl::CreateFonts()
{
    if (m_descriptionFont.GetSafeHandle() != nullptr)
        return;
    LOGFONTW description{};
    const CWnd* const parent = GetParent();
    const CFont* const font = parent != nullptr ? parent->GetFont() : nullptr;
    if (font != nullptr && font->GetLogFont(&description))
        m_metrics = ov::MetricsOfFont(description.lfHeight);
    description = {};
    description.lfHeight = m_metrics.fontHeight;
    description.lfWeight = FW_NORMAL;
    description.lfPitchAndFamily = FF_SWISS;
    ::lstrcpynW(description.lfFaceName, L"Tahoma", LF_FACESIZE);
    m_descriptionFont.CreateFontIndirect(&description);
    description.lfUnderline = TRUE;
    m_variableFont.CreateFontIndirect(&description);
    description.lfUnderline = FALSE;
    description.lfWeight = FW_BOLD;
    m_headingFont.CreateFontIndirect(&description);
}

CFont& CToolTipControl::FontOf(ov::TooltipSection section)
{
    switch (section) {
    case ov::TooltipSection::Heading:
        return m_headingFont;
    case ov::TooltipSection::Description:
        return m_descriptionFont;
    default:
        return m_variableFont;
    }
}

std::vector<ov::TooltipPart> CToolTipControl::Measure(CDC* context)
{
    std::vector<ov::TooltipPart> parts = ov::SplitTooltip(m_currentText);
    for (ov::TooltipPart& part : parts) {
        // The system reports no usable size for an empty text.
        if (part.text.empty())
            continue;
        const FontScope font(context, FontOf(part.section));
        CRect box;
        context->DrawText(part.text, &box, textFormat | DT_CALCRECT);
        part.extent = {box.Width(), box.Height()};
    }
    return parts;
}

bool CToolTipControl::MakeRegion(CRgn& region) const
{
    const CRect body = ToRect(m_outline.body);
    if ((m_style & (kTooltipBalloon | kTooltipRoundedRectangle)) == 0)
        return region.CreateRectRgnIndirect(body);
    if (!region.CreateRoundRectRgn(body.left, body.top, body.right, body.bottom, ov::kTooltipCorner.width,
                                   ov::kTooltipCorner.height))
        return false;
    if (!m_outline.tail)
        return true;
    POINT corners[3]{};
    std::transform(m_outline.tail->begin(), m_outline.tail->end(), corners, [](const ov::Point& point) {
        return POINT{point.x, point.y};
    });
    CRgn tail;
    return tail.CreatePolygonRgn(corners, 3, WINDING) && region.CombineRgn(&region, &tail, RGN_OR) != ERROR;
}

void CToolTipControl::ShowAt(CPoint anchor)
{
    m_pending = false;
    CreateFonts();
    ov::Size body;
    {
        CClientDC context(this);
        const std::vector<ov::TooltipPart> parts = Measure(&context);
        if (parts.empty())
            return;
        body = ov::TooltipBodySize(parts, m_metrics, SizeOfIcon(GetApplicationIcon()));
    }
    m_anchor = anchor;
    const ov::Point point{anchor.x, anchor.y};
    m_side = ov::ChooseTooltipSide(body, point);
    m_outline = ov::OutlineTooltip(body, m_side, (m_style & kTooltipBalloon) != 0);
    CRgn region;
    if (MakeRegion(region) && SetWindowRgn(region, FALSE) != 0)
        region.Detach();
    const ov::Point place = ov::TooltipPosition(m_outline, m_side, point);
    SetWindowPos(nullptr, place.x, place.y, m_outline.window.width, m_outline.window.height,
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    RedrawWindow();
}

void CToolTipControl::Hide()
{
    KillTimer(watchTimer);
    m_watchTimer = 0;
    ShowWindow(SW_HIDE);
    m_controlRect = CRect();
    m_anchor = CPoint();
}

void CToolTipControl::OnPaint()
{
    CPaintDC context(this);
    Draw(&context);
}

void CToolTipControl::Draw(CDC* context)
{
    CRgn region;
    if (!MakeRegion(region))
        return;
    CBrush fill(kTooltipFillColour);
    context->FillRgn(&region, &fill);
    if ((m_style & (kTooltipBalloon | kTooltipRoundedRectangle)) != 0) {
        CBrush dark(kTooltipDarkFrameColour);
        CBrush light(kTooltipLightFrameColour);
        context->FrameRgn(&region, &dark, 2, 1);
        context->FrameRgn(&region, &light, 1, 1);
    } else {
        CRect body = ToRect(m_outline.body);
        context->DrawEdge(body, EDGE_ETCHED, BF_RECT);
        context->Draw3dRect(body, kTooltipLightFrameColour, kTooltipDarkFrameColour);
    }

    const HICON icon = GetApplicationIcon();
    const ov::Size iconSize = SizeOfIcon(icon);
    const std::vector<ov::TooltipPart> parts = Measure(context);
    const std::vector<ov::Rect> places = ov::PlaceTooltipParts(parts, m_metrics, m_outline, iconSize);
    context->SetBkMode(TRANSPARENT);
    for (size_t i = 0; i < parts.size(); ++i) {
        const FontScope font(context, FontOf(parts[i].section));
        context->SetTextColor(ColourOf(parts[i].section));
        CRect place = ToRect(places[i]);
        context->DrawText(parts[i].text, place, FormatOf(parts[i].section));
    }
    const ov::Point place = ov::PlaceTooltipIcon(m_outline);
    if (icon != nullptr)
        ::DrawIconEx(*context, place.x, place.y, icon, iconSize.width, iconSize.height, 0, nullptr,
                     DI_NORMAL);
}

void CToolTipControl::OnTimer(UINT_PTR id)
{
    const CPoint cursor = CursorPosition();
    const bool inside = m_controlRect.PtInRect(cursor);
    if (id == showTimer && inside && m_pending) {
        KillTimer(showTimer);
        ShowAt(cursor);
        m_watchTimer = SetTimer(watchTimer, watchPeriod);
    } else if (id == watchTimer && !inside) {
        Hide();
    }
}

void CToolTipControl::OnDestroy()
{
    if (m_watchTimer != 0)
        KillTimer(m_watchTimer);
    m_watchTimer = 0;
    m_pending = false;
    m_currentText.clear();
    // The next window may have a parent with another font.
    for (CFont* font : {&m_headingFont, &m_variableFont, &m_descriptionFont})
        font->DeleteObject();
    m_metrics = {};
    // Window handles are reused; a text must not be assigned to a later control.
    m_entries.clear();
    CWnd::OnDestroy();
}
