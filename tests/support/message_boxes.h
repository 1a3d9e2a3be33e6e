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
    int DoMessageBox(LPCTSTR lpszPrompt, UINT, UINT) override {
        kept.push_back(lpszPrompt);
        return IDOK;
    }
    Messages kept;
};
inline MessageKeepingApp messageKeepingApp;

// The messages since the last call.
inline Messages takeMessages() {
    return std::exchange(messageKeepingApp.kept, {});
}

} // namespace orv::test
