#include "Pages.h"

namespace gallery {

std::span<const Page> pages() {
    static const Page all[] = {
        {"线型", createLinePage, "绘图"},
        {"选择控件", createPickerPage},
        {"文本属性", createTextPropertyPage},
    };
    return all;
}

} // namespace gallery
