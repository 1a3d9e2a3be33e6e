#include "Picture.h"

#include <gdiplus.h>

#include <memory>
#include <string>
#include <vector>

namespace gallery {
namespace {

using namespace Gdiplus;

constexpr int bytesPerPixel = 3;

int rowBytes(int width) {
    return (width * bytesPerPixel + 3) & ~3;
}

class ImagingSession {
public:
    ImagingSession() {
        const GdiplusStartupInput input;
        m_started = GdiplusStartup(&m_token, &input, NULL) == Ok;
    }
    ~ImagingSession() {
        if (m_started) {
            GdiplusShutdown(m_token);
        }
    }
    ImagingSession(const ImagingSession&) = delete;
    ImagingSession& operator=(const ImagingSession&) = delete;

private:
    ULONG_PTR m_token = 0;
    bool m_started = false;
};

bool findEncoder(const std::wstring& mimeType, CLSID& id) {
    UINT count = 0;
    UINT bytes = 0;
    if (DllExports::GdipGetImageEncodersSize(&count, &bytes) != Ok || bytes == 0) {
        return false;
    }
    std::vector<BYTE> room(bytes);
    ImageCodecInfo* encoders = reinterpret_cast<ImageCodecInfo*>(room.data());
    if (DllExports::GdipGetImageEncoders(count, bytes, encoders) != Ok) {
        return false;
    }
    for (UINT i = 0; i < count; ++i) {
        if (mimeType == encoders[i].MimeType) {
            id = encoders[i].Clsid;
            return true;
        }
    }
    return false;
}

std::wstring wideName(const CString& name) {
    std::wstring wide(name.GetLength() + 1, L'\0');
    wide.resize(::MultiByteToWideChar(CP_ACP, 0, name, name.GetLength(), wide.data(), int(wide.size())));
    return wide;
}

bool encode(void* bits, int width, int height, const CString& name, const wchar_t* mimeType) {
    const ImagingSession session;
    CLSID encoder;
    GpBitmap* bitmap = NULL;
    if (!findEncoder(mimeType, encoder) ||
        DllExports::GdipCreateBitmapFromScan0(width, height, rowBytes(width), PixelFormat24bppRGB,
                                              static_cast<BYTE*>(bits), &bitmap) != Ok) {
        return false;
    }
    const GpStatus status = DllExports::GdipSaveImageToFile(bitmap, wideName(name).c_str(), &encoder, NULL);
    DllExports::GdipDisposeImage(bitmap);
    return status == Ok;
}

} // namespace

Picture::~Picture() {
    if (m_previous != NULL) {
        m_dc.SelectObject(m_previous);
    }
}

BOOL Picture::create(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // top-down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = bytesPerPixel * 8;
    HBITMAP bitmap = ::CreateDIBSection(NULL, &info, DIB_RGB_COLORS, &m_bits, NULL, 0);
    if (bitmap == NULL || !m_bitmap.Attach(bitmap) || !m_dc.CreateCompatibleDC(NULL)) {
        return FALSE;
    }
    m_previous = m_dc.SelectObject(&m_bitmap);
    m_width = width;
    m_height = height;
    return m_dc.PatBlt(0, 0, width, height, WHITENESS);
}

BOOL Picture::save(const CString& name, CString& message) {
    CString beside;
    beside.Format("%s.%u.part", name, static_cast<UINT>(::GetCurrentProcessId()));
    const bool asBitmap = name.Right(4).CompareNoCase(".bmp") == 0;
    ::GdiFlush();
    if (encode(m_bits, m_width, m_height, beside, asBitmap ? L"image/bmp" : L"image/png") &&
        ::MoveFileExA(beside, name, MOVEFILE_REPLACE_EXISTING)) {
        return TRUE;
    }
    ::DeleteFileA(beside);
    message.Format("%s: the picture cannot be written", name);
    return FALSE;
}

} // namespace gallery
