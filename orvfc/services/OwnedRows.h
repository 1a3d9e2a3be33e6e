#pragma once

// Handing rows over to an owning array without losing one when memory is short.

#include <memory>

#include "DynamicArray.h"

namespace orv {

// Null is left out silently.
template <class T>
void addOwned(CDynamicPtrArray<T>& rows, std::unique_ptr<T> row) {
    if (!row)
        return;
    rows.Add(row.get());
    row.release();
}

template <class Made, class T, class... Args>
void addNew(CDynamicPtrArray<T>& rows, const Args&... args) {
    addOwned<T>(rows, std::make_unique<Made>(args...));
}

} // namespace orv
