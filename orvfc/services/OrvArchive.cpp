#include "OrvArchive.h"

#include <optional>

namespace {

// The archive's buffer pointers are protected.
class PositionedArchive : public CArchive {
public:
    using CArchive::CArchive;

    LONG read() const { return static_cast<LONG>(m_lpBufCur - m_lpBufStart); }
    LONG unread() const { return static_cast<LONG>(m_lpBufMax - m_lpBufCur); }
    LONG size() const { return static_cast<LONG>(m_lpBufMax - m_lpBufStart); }
    void move(LONG n) { m_lpBufCur += n; }
    void fill() { FillBuffer(1); }
};

} // namespace

struct COrvArchive::Held {
    CFile* pFile;
    UINT nMode;
    int nBufferSize;
    void* pBuffer;
    std::optional<PositionedArchive> archive;

    void start() { archive.emplace(pFile, nMode, nBufferSize, pBuffer); }
    bool isLoading() const { return archive && archive->IsLoading(); }
};

COrvArchive::COrvArchive(CFile* pFile, UINT nMode, int nBufferSize, void* pBuffer)
    : m_pHeld(new Held{pFile, nMode, nBufferSize, pBuffer, {}}) {
    try {
        m_pHeld->start();
    } catch (...) {
        delete m_pHeld;
        throw;
    }
}

COrvArchive::~COrvArchive() {
    delete m_pHeld;
}

CArchive* COrvArchive::GetArchive() const {
    return m_pHeld->archive ? &*m_pHeld->archive : NULL;
}

LONG COrvArchive::GetCurrentPos() const {
    return m_pHeld->archive ? m_pHeld->archive->read() : 0;
}

LONG COrvArchive::GetSize() const {
    return m_pHeld->archive ? m_pHeld->archive->size() : 0;
}

ULONGLONG COrvArchive::GetRealPos() {
    if (m_pHeld->archive)
        m_pHeld->archive->Flush();
    return m_pHeld->pFile != NULL ? m_pHeld->pFile->GetPosition() : 0;
}

void COrvArchive::SkipPos(LONG n) {
    ASSERT(m_pHeld->isLoading());
    if (!m_pHeld->isLoading())
        return;
    PositionedArchive& archive = *m_pHeld->archive;
    if (n >= -archive.read() && n < archive.unread()) {
        archive.move(n);
        return;
    }
    archive.Flush();
    m_pHeld->pFile->Seek(n, CFile::current);
}

void COrvArchive::SeekCurrentPos(DWORD n) {
    ASSERT(m_pHeld->isLoading());
    if (!m_pHeld->isLoading())
        return;
    CFile& file = *m_pHeld->pFile;
    m_pHeld->archive->Flush();
    file.Seek(n, CFile::current);
    if (file.GetPosition() < file.GetLength())
        m_pHeld->archive->fill();
}

void COrvArchive::SkipPosBegin(LONG pos) {
    if (m_pHeld->archive)
        m_pHeld->archive->Flush();
    ASSERT(m_pHeld->pFile != NULL);
    if (m_pHeld->pFile == NULL)
        return;
    m_pHeld->pFile->Seek(pos, CFile::begin);
    m_pHeld->start();
}

void COrvArchive::Dump(CDumpContext& dc) const {
    dc << "archive over " << m_pHeld->pFile;
    dc << (m_pHeld->isLoading() ? ", loading" : ", storing");
    dc << ", " << GetCurrentPos() << " of " << GetSize() << " bytes of its buffer passed\n";
}
