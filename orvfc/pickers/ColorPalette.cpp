#include "ColorPalette.h"

#include "ColorPicker.h"
#include "NameSearch.h"
#include "RowPaint.h"

namespace orv {

namespace {

constexpr char kClassName[] = "ColorPalette";
constexpr char kTitle[] = "Palatte"; // misspelt: hosts find the window by it

CRect workArea(HWND hWnd) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(::MonitorFromWindow(hWnd, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

// The colours of a set, its last row 其它... at the end.
std::vector<ColorSetStruct> rowsOf(const CColorSet& colors, bool& bOwn) {
    std::vector<ColorSetStruct> rows;
    int nOwn = -1;
    for (int i = 0; i < colors.GetSize(); ++i)
        if (colors.GetElement(i)->strName == "其它...")
            nOwn = i;
    for (int i = 0; i < colors.GetSize(); ++i)
        if (i != nOwn)
            rows.push_back(*colors.GetElement(i));
    bOwn = nOwn >= 0;
    if (bOwn)
        rows.push_back(*colors.GetElement(nOwn));
    return rows;
}

void registerClass() {
    WNDCLASS wc = {};
    wc.style = CS_SAVEBITS;
    wc.lpfnWndProc = CColorPicker::PaletteWndProc;
    wc.hInstance = AfxGetInstanceHandle();
    wc.hCursor = ::LoadCursor(NULL, IDC_ARROW);
    wc.lpszClassName = kClassName;
    AfxRegisterClass(&wc);
}

} // namespace

ColorPalette::ColorPalette(CColorPicker& picker, const CColorSet& colors)
    : m_picker(picker), m_rows(rowsOf(colors, m_bOwn)),
      m_grid(static_cast<int>(m_rows.size()) - (m_bOwn ? 1 : 0), m_bOwn, workArea(picker.m_hWnd).Size()) {
    const COLORREF crColor = picker.GetColor();
    for (int i = 0; i < m_grid.count() && m_nSelected < 0; ++i)
        if (!m_grid.isWide(i) && m_rows[static_cast<size_t>(i)].crColor == crColor)
            m_nSelected = i;
    m_nHot = m_nSelected;
    open();
}

ColorPalette::~ColorPalette() {
    const HWND hWnd = m_hWnd;
    m_hWnd = NULL;
    m_tip.DestroyWindow();
    if (!hWnd)
        return;
    ::SetWindowLongPtr(hWnd, GWLP_USERDATA, 0);
    ::DestroyWindow(hWnd);
}

bool ColorPalette::open() {
    registerClass();
    CRect anchor;
    m_picker.GetWindowRect(&anchor);
    CRect window(CPoint(0, 0), m_grid.size());
    ::AdjustWindowRectEx(&window, WS_POPUP | WS_BORDER, FALSE, WS_EX_TOOLWINDOW);
    const CPoint at = placeAt(anchor, window.Size(), workArea(m_picker.m_hWnd));
    m_hWnd = ::CreateWindowEx(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, kClassName, kTitle, WS_POPUP | WS_BORDER,
                              at.x, at.y, window.Width(), window.Height(), m_picker.m_hWnd, NULL,
                              AfxGetInstanceHandle(), NULL);
    if (!m_hWnd)
        return false;
    ::SetWindowLongPtr(m_hWnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    if (m_tip.Create(&m_picker, TTS_ALWAYSTIP | TTS_NOPREFIX)) {
        TOOLINFO tool = tipTool();
        tool.lpszText = const_cast<char*>("");
        m_tip.SendMessage(TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    }
    ::GetCursorPos(&m_ptMouse);
    // The button keeps the keyboard.
    ::ShowWindow(m_hWnd, SW_SHOWNA);
    ::SetCapture(m_hWnd);
    return true;
}

// --- what the user does

void ColorPalette::close() {
    m_picker.DestroyPaletteWindow();
}

void ColorPalette::choose(int nCell) {
    const bool bOwn = m_grid.isWide(nCell);
    const COLORREF cr = m_rows[static_cast<size_t>(nCell)].crColor;
    CColorPicker& picker = m_picker;
    close();
    if (bOwn)
        picker.ChooseOwn();
    else
        picker.SetColor(cr);
}

void ColorPalette::hover(int nCell) {
    if (nCell == m_nHot)
        return;
    for (const int nChanged : {m_nHot, nCell}) {
        const CRect rc = m_grid.cell(nChanged);
        ::InvalidateRect(m_hWnd, &rc, FALSE);
    }
    m_nHot = nCell;
    showTip();
}

TOOLINFO ColorPalette::tipTool() const {
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOA_V1_SIZE; // the whole structure is refused by older common controls
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE;
    tool.hwnd = m_hWnd;
    return tool;
}

void ColorPalette::showTip() {
    if (!m_tip.m_hWnd)
        return;
    TOOLINFO tool = tipTool();
    const bool bShow = m_nHot >= 0 && !m_grid.isWide(m_nHot);
    if (bShow) {
        tool.lpszText = const_cast<char*>(m_rows[static_cast<size_t>(m_nHot)].strName.GetString());
        m_tip.SendMessage(TTM_UPDATETIPTEXTA, 0, reinterpret_cast<LPARAM>(&tool));
        // Below all cells: it hides none.
        CPoint at(m_grid.cell(m_nHot).left, m_grid.size().cy + 4);
        ::ClientToScreen(m_hWnd, &at);
        m_tip.SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(at.x, at.y));
    }
    m_tip.SendMessage(TTM_TRACKACTIVATE, bShow, reinterpret_cast<LPARAM>(&tool));
}

bool ColorPalette::key(UINT nKey) {
    static constexpr struct {
        UINT nKey;
        GridStep way;
    } kSteps[] = {{VK_LEFT, GridStep::left}, {VK_UP, GridStep::up},      {VK_RIGHT, GridStep::right},
                  {VK_DOWN, GridStep::down}, {VK_HOME, GridStep::first}, {VK_END, GridStep::last}};
    for (const auto& step : kSteps)
        if (step.nKey == nKey) {
            hover(m_grid.step(m_nHot, step.way));
            return true;
        }
    if (nKey == VK_ESCAPE || nKey == VK_F4)
        close();
    else if ((nKey == VK_RETURN || nKey == VK_SPACE) && m_nHot >= 0)
        choose(m_nHot);
    else
        return nKey == VK_RETURN || nKey == VK_SPACE;
    return true;
}

void ColorPalette::typed(UINT nChar) {
    if (!m_typed.Add(m_picker.m_hWnd, nChar))
        return;
    const int nCell = rowTyped(m_typed.GetText(), m_grid.count(), m_nHot,
                               [this](int i) { return m_rows[static_cast<size_t>(i)].strName; });
    if (nCell >= 0)
        hover(nCell);
}

LRESULT ColorPalette::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const CPoint point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
    CRect rcClient;
    ::GetClientRect(m_hWnd, &rcClient);
    switch (message) {
    case WM_MOUSEMOVE: {
        CPoint ptScreen = point;
        ::ClientToScreen(m_hWnd, &ptScreen);
        if (ptScreen != m_ptMouse)
            hover(m_grid.hit(point));
        m_ptMouse = ptScreen;
        return 0;
    }
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
        if (!rcClient.PtInRect(point))
            close();
        return 0;
    case WM_LBUTTONUP:
        if (const int nCell = m_grid.hit(point); nCell >= 0)
            choose(nCell);
        return 0;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_CAPTURECHANGED:
        // Somebody else's menu or dialog: the clicks outside would not be seen any more.
        if (reinterpret_cast<HWND>(lParam) != m_hWnd)
            close();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT: {
        PAINTSTRUCT ps;
        paint(CDC::FromHandle(::BeginPaint(m_hWnd, &ps)));
        ::EndPaint(m_hWnd, &ps);
        return 0;
    }
    case WM_PRINTCLIENT:
        paint(CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
        return 0;
    case WM_NCDESTROY: {
        // With its owner.
        const LRESULT lResult = ::DefWindowProc(m_hWnd, message, wParam, lParam);
        m_hWnd = NULL;
        close();
        return lResult;
    }
    default:
        return ::DefWindowProc(m_hWnd, message, wParam, lParam);
    }
}

// --- painting

void ColorPalette::paint(CDC* pDC) {
    if (!pDC)
        return;
    const SavedDC saved(pDC);
    CRect rcClient;
    ::GetClientRect(m_hWnd, &rcClient);
    pDC->FillSolidRect(&rcClient, ::GetSysColor(COLOR_BTNFACE));
    for (int i = 0; i < m_grid.count(); ++i)
        if (pDC->RectVisible(m_grid.cell(i)))
            paintCell(*pDC, i);
}

// From outside to inside: the hover mark, the selection's frame, the colour in its frame.
void ColorPalette::paintCell(CDC& dc, int nCell) {
    const bool bHot = nCell == m_nHot;
    const ColorSetStruct& row = m_rows[static_cast<size_t>(nCell)];
    CRect rc = m_grid.cell(nCell);
    if (bHot)
        dc.FillSolidRect(&rc, ::GetSysColor(COLOR_HIGHLIGHT));
    if (m_grid.isWide(nCell)) {
        if (!bHot)
            dc.DrawEdge(&rc, BDR_RAISEDINNER, BF_RECT);
        dc.SelectObject(m_picker.GetFont());
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(::GetSysColor(bHot ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT));
        dc.DrawText(row.strName, &rc, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX);
        return;
    }
    CBrush selection, frame;
    selection.CreateSysColorBrush(bHot ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT);
    frame.CreateSysColorBrush(COLOR_BTNSHADOW);
    rc.DeflateRect(1, 1);
    if (nCell == m_nSelected)
        dc.FrameRect(&rc, &selection);
    if (rc.Width() > 8)
        rc.DeflateRect(2, 2);
    dc.FillSolidRect(&rc, row.crColor & 0xFFFFFF);
    dc.FrameRect(&rc, &frame);
}

} // namespace orv
