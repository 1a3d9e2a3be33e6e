#pragma once

// The program's application keeps message boxes instead of showing them.

#include <afxwin.h>

#include <string>
#include <utility>
#include <vector>

namespace orv::test {

using Messages = std::vector<std::string>;

class MessageKeepingApp : public CWinApp {
public:
    int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) override {
        kept.push_back(lpszPrompt);
        type = nType;
        help = nIDPrompt;
        return answer;
    }
    Messages kept;
    UINT type = 0, help = 0; // of the last one
    int answer = IDOK;
};
inline MessageKeepingApp messageKeepingApp;

// The messages since the last call.
inline Messages takeMessages() {
    return std::exchange(messageKeepingApp.kept, {});
}

} // namespace orv::test
