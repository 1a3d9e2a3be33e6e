#pragma once

// Ready-made arrays and lists, stored as a count and the elements. When loading throws, arrays of values and
// texts are as before; arrays and lists of objects hold what was read, so that their owner can delete it.

#include "afxtempl.h"

#define ORV_DECLARE_ARRAY(class_name, TYPE, ARG_TYPE, DECLARE)                                               \
    class ORVAFX_API class_name : public OrvArray<TYPE, ARG_TYPE> {                                          \
        DECLARE(class_name)                                                                                  \
                                                                                                             \
    public:                                                                                                  \
        class_name() {}                                                                                      \
        void Serialize(CArchive& ar) override;                                                               \
    };

#define ORV_DECLARE_LIST(class_name, TYPE, ARG_TYPE, DECLARE)                                                \
    class ORVAFX_API class_name : public OrvList<TYPE, ARG_TYPE> {                                           \
        DECLARE(class_name)                                                                                  \
                                                                                                             \
    public:                                                                                                  \
        explicit class_name(INT_PTR nBlockSize = 10) : OrvList<TYPE, ARG_TYPE>(nBlockSize) {}                \
        void Serialize(CArchive& ar) override;                                                               \
    };

// Values: little-endian, without gaps.
ORV_DECLARE_ARRAY(CByteArray, BYTE, BYTE, DECLARE_SERIAL)
ORV_DECLARE_ARRAY(CWordArray, WORD, WORD, DECLARE_SERIAL)
ORV_DECLARE_ARRAY(CDWordArray, DWORD, DWORD, DECLARE_SERIAL)
// Cannot be stored (CNotSupportedException).
ORV_DECLARE_ARRAY(CUIntArray, UINT, UINT, DECLARE_DYNAMIC)
ORV_DECLARE_ARRAY(CPtrArray, void*, void*, DECLARE_DYNAMIC)
// Pointers to objects that stay somebody else's; loading makes new objects.
ORV_DECLARE_ARRAY(CObArray, CObject*, CObject*, DECLARE_SERIAL)
ORV_DECLARE_ARRAY(CStringArray, CString, const CString&, DECLARE_SERIAL)

// Loading appends to a list.
ORV_DECLARE_LIST(CPtrList, void*, void*, DECLARE_DYNAMIC)
ORV_DECLARE_LIST(CObList, CObject*, CObject*, DECLARE_SERIAL)
ORV_DECLARE_LIST(CStringList, CString, const CString&, DECLARE_SERIAL)

#undef ORV_DECLARE_ARRAY
#undef ORV_DECLARE_LIST
