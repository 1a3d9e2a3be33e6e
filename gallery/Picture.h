#pragma once

#include <afxwin.h>

namespace gallery {

// A sheet of white paper in memory to draw on, 24 bits a pixel.
class Picture {
public:
    Picture() = default;
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    // Once. FALSE when there is no memory for it.
    BOOL create(int width, int height);

    CDC& dc() { return m_dc; }

    // As .bmp when the name ends so, else as PNG. Written beside the name and renamed when complete; a
    // picture that stood there stays until then. On failure FALSE and the reason in message, and nothing is
    // left behind.
    BOOL save(const CString& name, CString& message);

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_previous = NULL;
    int m_width = 0;
    int m_height = 0;
    void* m_bits = NULL; // rows from the top down, each filled up to a multiple of four bytes
};

} // namespace gallery
