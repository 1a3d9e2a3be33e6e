#pragma once

#include <afxcoll.h>

#include <vector>

// Serial classes for the archive tests. Each counts its living objects.

// A value and a pointer to somebody else's dot.
class Dot : public CObject {
    DECLARE_SERIAL(Dot)

public:
    Dot() {
        s_nLive++;
        s_last.push_back(this);
    }
    explicit Dot(LONG n) : Dot() { m_n = n; }
    ~Dot() override { s_nLive--; }
    void Serialize(CArchive& ar) override;

    LONG m_n = 0;
    Dot* m_pLink = NULL;
    static int s_nLive;
    static std::vector<Dot*> s_last; // all that were made since the test emptied it
};

// Owns its children, a text and a date.
class Branch : public Dot {
    DECLARE_SERIAL(Branch)

public:
    ~Branch() override;
    void Serialize(CArchive& ar) override;

    CString m_strName;
    CDWordArray m_numbers;
    CObArray m_children;
};

// Owns the one it was read with; nests as deep as the stream says.
class Nest : public CObject {
    DECLARE_SERIAL(Nest)

public:
    Nest() { Dot::s_nLive++; }
    ~Nest() override;
    void Serialize(CArchive& ar) override;

    Nest* m_pInner = NULL;
};

// Version 2 of a class that still reads version 1.
class Grown : public CObject {
    DECLARE_SERIAL(Grown)

public:
    void Serialize(CArchive& ar) override;

    LONG m_nOld = 0, m_nNew = 0;
    UINT m_nSchema = 0;
};
