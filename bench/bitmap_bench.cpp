// Bitmap files against the bare calls that move the same bytes and against the system's own loader; mapped
// files of two sizes; pixels against a plain function in another DLL.

#include "harness.h"

#include <orvfc/bitmap/cdib.h>

#include "bitmap_peer.h"

#include <string>

namespace {

constexpr int largeSide = 4096; // 64 MiB at 32 bits
constexpr DWORD headers = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);

// A bitmap file of 32 bits that is there as long as the program runs.
class BenchFile {
public:
    explicit BenchFile(int width, int height) : size(headers + DWORD(width) * height * 4) {
        char folder[MAX_PATH];
        ::GetTempPathA(MAX_PATH, folder);
        char file[MAX_PATH];
        ::GetTempFileNameA(folder, "dib", 0, file);
        name = file;
        CFile out(file, CFile::modeCreate | CFile::modeWrite);
        BITMAPFILEHEADER fileHeader = {};
        fileHeader.bfType = 0x4D42;
        fileHeader.bfOffBits = headers;
        const BITMAPINFOHEADER header = {sizeof(header), width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        out.Write(&fileHeader, sizeof(fileHeader));
        out.Write(&header, sizeof(header));
        out.SetLength(size);
    }
    ~BenchFile() { ::DeleteFileA(name.c_str()); }
    BenchFile(const BenchFile&) = delete;
    BenchFile& operator=(const BenchFile&) = delete;

    std::string name;
    DWORD size;
};

const BenchFile& largeFile() {
    static const BenchFile file(largeSide, largeSide);
    return file;
}

void libraryRead(int times) {
    while (times--) {
        CFile file(largeFile().name.c_str(), CFile::modeRead | CFile::shareDenyWrite);
        COrvDib dib;
        orv::bench::keep(dib.Read(&file));
    }
}

void bareRead(int times) {
    while (times--) {
        const HANDLE file = ::CreateFileA(largeFile().name.c_str(), GENERIC_READ, FILE_SHARE_READ, NULL,
                                          OPEN_EXISTING, 0, NULL);
        BYTE* bytes = static_cast<BYTE*>(::operator new(largeFile().size));
        DWORD done = 0;
        ::ReadFile(file, bytes, largeFile().size, &done, NULL);
        orv::bench::keep(done);
        ::operator delete(bytes);
        ::CloseHandle(file);
    }
}

void systemRead(int times) {
    while (times--) {
        const HANDLE bitmap = ::LoadImageA(NULL, largeFile().name.c_str(), IMAGE_BITMAP, 0, 0,
                                           LR_LOADFROMFILE | LR_CREATEDIBSECTION);
        orv::bench::keep(bitmap != NULL);
        ::DeleteObject(bitmap);
    }
}

// Over a file that is long enough already, so that the disk's finding room does not count.
struct Output {
    Output() : target(largeSide, largeSide) {
        CFile in(largeFile().name.c_str(), CFile::modeRead | CFile::shareDenyWrite);
        dib.Read(&in);
        file.Open(target.name.c_str(), CFile::modeReadWrite);
        bytes = static_cast<BYTE*>(::operator new(target.size));
        memset(bytes, 1, target.size);
    }
    ~Output() { ::operator delete(bytes); }

    BenchFile target;
    COrvDib dib;
    CFile file;
    BYTE* bytes;
};

Output& output() {
    static Output one;
    return one;
}

void libraryWrite(int times) {
    while (times--) {
        output().file.SeekToBegin();
        orv::bench::keep(output().dib.Write(&output().file));
    }
}

void bareWrite(int times) {
    while (times--) {
        DWORD done = 0;
        ::SetFilePointer(output().file, 0, NULL, FILE_BEGIN);
        ::WriteFile(output().file, output().bytes, output().target.size, &done, NULL);
        orv::bench::keep(done);
    }
}

void attach(const BenchFile& file, int times) {
    while (times--) {
        COrvDib dib;
        orv::bench::keep(dib.AttachMapFile(file.name.c_str(), 1));
    }
}

void attachGibibyte(int times) {
    static const BenchFile file(16384, 16384);
    attach(file, times);
}

void attachMebibyte(int times) {
    static const BenchFile file(512, 512);
    attach(file, times);
}

constexpr int pixelSide = 256;

COrvDib& pixels(int bitCount) {
    static COrvDib dib;
    if (dib.m_pInfoHeader == NULL || dib.m_pInfoHeader->biBitCount != bitCount) {
        dib = COrvDib(CSize(pixelSide, pixelSide), bitCount);
        dib.CreateSection();
    }
    return dib;
}

template <int bitCount>
void libraryPixels(int times) {
    const COrvDib& dib = pixels(bitCount);
    DWORD sum = 0;
    while (times--) {
        for (int y = 0; y < pixelSide; ++y)
            for (int x = 0; x < pixelSide; ++x)
                sum += dib.GetPixelIndex(x, y);
    }
    orv::bench::keep(sum);
}

template <int bitCount>
void peerPixels(int times) {
    const COrvDib& dib = pixels(bitCount);
    DWORD sum = 0;
    while (times--) {
        for (int y = 0; y < pixelSide; ++y)
            for (int x = 0; x < pixelSide; ++x)
                sum += peerPixel(dib.m_pInfoHeader, dib.m_pBits, dib.m_dwImageBytes, x, y);
    }
    orv::bench::keep(sum);
}

const orv::bench::Rows rows([](orv::bench::Suite& suite) {
    suite.add({"bitmaps", "Read, 64 MiB; ReadFile", 1.15, libraryRead, bareRead});
    suite.add({"bitmaps", "Read, 64 MiB; LoadImage", 1.0, libraryRead, systemRead});
    suite.add({"bitmaps", "Write, 64 MiB; WriteFile", 1.15, libraryWrite, bareWrite});
    suite.add({"bitmaps", "AttachMapFile, 1 GiB; 1 MiB", 1.2, attachGibibyte, attachMebibyte});
    suite.add({"bitmaps", "GetPixelIndex, 1 bit; other DLL", 1.3, libraryPixels<1>, peerPixels<1>});
    suite.add({"bitmaps", "GetPixelIndex, 8 bits; other DLL", 1.3, libraryPixels<8>, peerPixels<8>});
    suite.add({"bitmaps", "GetPixelIndex, 24 bits; other DLL", 1.3, libraryPixels<24>, peerPixels<24>});
});

} // namespace
