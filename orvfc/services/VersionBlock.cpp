#include "VersionBlock.h"

namespace orv {

namespace {

constexpr size_t kDeepest = 3; // block, string file info, string table, string
constexpr size_t kSlack = 64;  // of zeros: a child's head may reach behind the end of its parent

// A node: length, length of the value, (32 bits: whether it is text), key, value, children; each on a
// multiple of 4.
class Walk {
public:
    explicit Walk(std::span<const BYTE> block) : block_(block) {
        // In the 32-bit form a small number stands where the 16-bit form has its key.
        wide_ = block.size() > 4 && block[4] < ' ';
    }

    bool isSound(size_t nStart, size_t nDepth) const {
        const size_t nHead = wide_ ? 6 : 4;
        if (nStart > block_.size() || block_.size() - nStart < nHead)
            return false;
        const size_t nEnd = nStart + word(nStart);
        if (nEnd > block_.size())
            return false;
        const size_t nKeyEnd = keyEnd(nStart + nHead, nEnd);
        if (nKeyEnd == 0)
            return false;
        const bool bWords = wide_ && word(nStart + 4) != 0;
        const size_t nValue = aligned(nKeyEnd);
        size_t nChild = aligned(nValue + word(nStart + 2) * (bWords ? 2 : 1));
        while (nDepth < kDeepest && nChild + sizeof(WORD) <= nEnd && word(nChild) != 0) {
            if (!isSound(nChild, nDepth + 1))
                return false;
            nChild = aligned(nChild + word(nChild));
        }
        return true;
    }

private:
    static size_t aligned(size_t n) { return (n + 3) & ~size_t(3); }

    size_t word(size_t n) const { return block_[n] | block_[n + 1] << 8; }

    // Behind the closing zero, or 0 when there is none.
    size_t keyEnd(size_t nKey, size_t nEnd) const {
        const size_t nUnit = wide_ ? 2 : 1;
        for (size_t n = nKey; n + nUnit <= nEnd; n += nUnit)
            if (block_[n] == 0 && block_[n + nUnit - 1] == 0)
                return n + nUnit;
        return 0;
    }

    std::span<const BYTE> block_;
    bool wide_;
};

} // namespace

bool isSoundVersionBlock(std::span<const BYTE> block) {
    return Walk(block).isSound(0, 0);
}

size_t versionBlockRoom(std::span<const BYTE> block) {
    const size_t nLength = block.size() < 2 ? 0 : block[0] | block[1] << 8;
    const size_t nTranslated = 2 * nLength + sizeof(DWORD);
    return (nTranslated > block.size() ? nTranslated : block.size()) + kSlack;
}

} // namespace orv
