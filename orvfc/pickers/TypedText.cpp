#include "TypedText.h"

namespace {

constexpr DWORD kNewSearch = 1000; // milliseconds

} // namespace

BOOL COrvTypedText::Add(HWND hWnd, UINT nChar) {
    const DWORD dwNow = static_cast<DWORD>(::GetMessageTime());
    const bool bControl = nChar < ' ';
    if (bControl || dwNow - m_dwLast > kNewSearch) {
        m_str.Empty();
        m_chLead = 0;
    }
    if (bControl || (nChar == ' ' && m_str.IsEmpty()))
        return FALSE;
    m_dwLast = dwNow;
    char bytes[3] = "";
    if (::IsWindowUnicode(hWnd)) {
        const auto ch = static_cast<WCHAR>(nChar);
        ::WideCharToMultiByte(CP_ACP, 0, &ch, 1, bytes, 2, NULL, NULL);
    } else if (m_chLead) {
        bytes[0] = m_chLead;
        bytes[1] = static_cast<char>(nChar);
        m_chLead = 0;
    } else if (::IsDBCSLeadByte(static_cast<BYTE>(nChar))) {
        m_chLead = static_cast<char>(nChar);
    } else {
        bytes[0] = static_cast<char>(nChar);
    }
    m_str += bytes;
    return TRUE;
}
