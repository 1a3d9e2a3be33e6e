// written_samples FOLDER: files that COrvDib writes at every depth and in every way, and beside each the
// colours of its pixels, three bytes each from the left top on, for another program's reading to be compared
// with. Names that begin with "sized" have their size field filled in.

#include <orvfc/bitmap/cdib.h>

#include <stdio.h>
#include <string>

namespace {

struct Way {
    const char* name;
    int bitCount;
    int height; // negative: from the top down
};

const Way ways[] = {{"1", 1, 6},       {"4", 4, 6},         {"8", 8, 6},         {"16", 16, 6},
                    {"24", 24, 6},     {"32", 32, 6},       {"1-down", 1, -6},   {"4-down", 4, -6},
                    {"8-down", 8, -6}, {"16-down", 16, -6}, {"24-down", 24, -6}, {"32-down", 32, -6}};
constexpr int width = 11;

COLORREF colorAt(int bitCount, int x, int y) {
    const int index = (x * 3 + y * 5) % (bitCount == 1 ? 2 : 8);
    return RGB(index & 1 ? 255 : 0, index & 2 ? 255 : 0, index & 4 ? 255 : 0);
}

// The colour's index in a table of all on and off channels, or its packed value.
DWORD valueOf(int bitCount, COLORREF color) {
    const bool red = GetRValue(color) != 0, green = GetGValue(color) != 0, blue = GetBValue(color) != 0;
    if (bitCount <= 8)
        return (red ? 1 : 0) + (green ? 2 : 0) + (blue ? 4 : 0);
    if (bitCount == 16)
        return (red ? 0x7C00 : 0) + (green ? 0x3E0 : 0) + (blue ? 0x1F : 0);
    return (red ? 0xFF0000 : 0) + (green ? 0xFF00 : 0) + (blue ? 0xFF : 0);
}

BOOL make(COrvDib& dib, const Way& way) {
    dib = COrvDib(CSize(width, way.height), way.bitCount);
    for (int i = 0; i < dib.m_nColorTableEntries && i < 8; ++i)
        dib.m_pColorTable[i] = {BYTE(i & 4 ? 255 : 0), BYTE(i & 2 ? 255 : 0), BYTE(i & 1 ? 255 : 0), 0};
    if (dib.CreateSection() == NULL)
        return FALSE;
    const int height = dib.GetDimensions().cy;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const COLORREF color = colorAt(way.bitCount, x, y);
            dib.SetPiexelIndex(x, height - 1 - y, valueOf(way.bitCount, color));
        }
    }
    return TRUE;
}

BOOL writeColors(const std::string& name, int bitCount, CSize size) {
    CFile file;
    if (!file.Open(name.c_str(), CFile::modeCreate | CFile::modeWrite))
        return FALSE;
    for (int y = 0; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            const COLORREF color = colorAt(bitCount, x, y);
            file.Write(&color, 3);
        }
    }
    return TRUE;
}

BOOL writeWay(const std::string& folder, const Way& way) {
    COrvDib dib;
    CFile file;
    const std::string plain = folder + way.name, sized = folder + "sized-" + way.name;
    return make(dib, way) && file.Open((plain + ".bmp").c_str(), CFile::modeCreate | CFile::modeWrite) &&
           dib.Write(&file) && writeColors(plain + ".rgb", way.bitCount, dib.GetDimensions()) &&
           dib.CopyToMapFile((sized + ".bmp").c_str()) &&
           writeColors(sized + ".rgb", way.bitCount, dib.GetDimensions());
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 || !AfxWinInit(::GetModuleHandleA(NULL), NULL, ::GetCommandLineA(), 0))
        return 2;
    for (const Way& way : ways) {
        if (!writeWay(std::string(argv[1]) + "/", way)) {
            fprintf(stderr, "%s cannot be written\n", way.name);
            return 1;
        }
    }
    return 0;
}
