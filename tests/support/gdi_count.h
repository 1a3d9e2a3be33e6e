#pragma once

namespace orv::test {

// Live GDI handles of this process, counted in the system's own handle table.
int liveGdiHandles();

} // namespace orv::test
