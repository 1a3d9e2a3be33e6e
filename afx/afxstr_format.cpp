#include "afxstr.h"

#include "afx.h"

#include <stdio.h>

// CString::Format. One reader of format texts serves both kinds of argument lists; numbers have the widths of
// Visual C++, whatever this platform's long is.

namespace {

// No column is wider: a width that comes from a broken argument must not fill the memory.
const int nMaxWidth = 0xFFFF;

// Where the values come from.
class ArgSource {
public:
    virtual ~ArgSource() = default;
    virtual LONGLONG integer(int nBits) = 0;
    virtual double real() = 0;
    virtual const void* pointer() = 0;
};

class VaListSource : public ArgSource {
public:
    explicit VaListSource(va_list args) { va_copy(m_args, args); }
    ~VaListSource() override { va_end(m_args); }
    LONGLONG integer(int nBits) override {
        return nBits > 32 ? va_arg(m_args, LONGLONG) : (LONGLONG)va_arg(m_args, int);
    }
    double real() override { return va_arg(m_args, double); }
    const void* pointer() override { return va_arg(m_args, const void*); }

private:
    va_list m_args;
};

class ArraySource : public ArgSource {
public:
    ArraySource(const OrvFormatArg* pArgs, size_t nArgs) : m_pArgs(pArgs), m_nLeft(nArgs) {}
    LONGLONG integer(int) override {
        const OrvFormatArg arg = take();
        ASSERT(arg.m_kind == OrvFormatArg::integer || arg.m_kind == OrvFormatArg::pointer);
        if (arg.m_kind == OrvFormatArg::real)
            return arg.m_real > -9.2e18 && arg.m_real < 9.2e18 ? (LONGLONG)arg.m_real : 0;
        return arg.m_kind == OrvFormatArg::pointer ? (LONGLONG)(UINT_PTR)arg.m_pointer : arg.m_integer;
    }
    double real() override {
        const OrvFormatArg arg = take();
        ASSERT(arg.m_kind == OrvFormatArg::real);
        return arg.m_kind == OrvFormatArg::real      ? arg.m_real
               : arg.m_kind == OrvFormatArg::integer ? (double)arg.m_integer
                                                     : 0;
    }
    const void* pointer() override {
        const OrvFormatArg arg = take();
        // NULL is a number in some of its forms.
        const bool bNull = arg.m_kind == OrvFormatArg::integer && arg.m_integer == 0;
        ASSERT(arg.m_kind == OrvFormatArg::pointer || bNull);
        return arg.m_kind == OrvFormatArg::pointer ? arg.m_pointer : bNull ? NULL : "";
    }

private:
    OrvFormatArg take() {
        if (m_nLeft == 0)
            return OrvFormatArg(); // the format asks for more than was given
        m_nLeft--;
        return *m_pArgs++;
    }

    const OrvFormatArg* m_pArgs;
    size_t m_nLeft;
};

// What stands between the per cent sign and the conversion letter.
struct Spec {
    bool bLeft = false, bZero = false;
    char flags[8] = "";
    int nWidth = 0;
    int nPrecision = -1;
    int nBits = 32;
    bool bWide = false;
    char conversion = 0;
};

int readNumber(const char*& p, ArgSource& args) {
    if (*p == '*') {
        p++;
        const LONGLONG n = args.integer(32);
        return n < -nMaxWidth ? -nMaxWidth : n > nMaxWidth ? nMaxWidth : (int)n;
    }
    int n = 0;
    for (; *p >= '0' && *p <= '9'; p++)
        n = n * 10 + (*p - '0') < nMaxWidth ? n * 10 + (*p - '0') : nMaxWidth;
    return n;
}

void readLengthModifier(const char*& p, Spec& spec) {
    static const struct {
        const char* text;
        int nBits;
    } modifiers[] = {{"I64", 64},
                     {"I32", 32},
                     {"I", sizeof(void*) * 8},
                     {"ll", 64},
                     {"l", 32},
                     {"hh", 8},
                     {"h", 16},
                     {"w", 32},
                     {"j", 64},
                     {"L", 32},
                     {"z", sizeof(void*) * 8},
                     {"t", sizeof(void*) * 8}};
    for (const auto& modifier : modifiers) {
        const size_t n = strlen(modifier.text);
        if (strncmp(p, modifier.text, n) == 0) {
            spec.nBits = modifier.nBits;
            spec.bWide = strcmp(modifier.text, "l") == 0 || *modifier.text == 'w';
            p += n;
            return;
        }
    }
}

Spec readSpec(const char*& p, ArgSource& args) {
    Spec spec;
    size_t nFlags = 0;
    for (; *p != 0 && strchr("-+ #0", *p) != NULL; p++) {
        spec.bLeft |= *p == '-';
        spec.bZero |= *p == '0';
        if (nFlags + 1 < sizeof(spec.flags) && memchr(spec.flags, *p, nFlags) == NULL)
            spec.flags[nFlags++] = *p;
    }
    spec.nWidth = readNumber(p, args);
    if (spec.nWidth < 0) {
        spec.bLeft = true;
        spec.nWidth = -spec.nWidth;
        if (memchr(spec.flags, '-', nFlags) == NULL)
            spec.flags[nFlags++] = '-';
    }
    if (*p == '.')
        spec.nPrecision = readNumber(++p, args);
    readLengthModifier(p, spec);
    spec.conversion = *p;
    if (*p != 0)
        p++;
    return spec;
}

void appendPadded(CString& out, const Spec& spec, LPCSTR text, int nLength) {
    const CString pad(spec.bZero && !spec.bLeft ? '0' : ' ', spec.nWidth - nLength);
    if (!spec.bLeft)
        out += pad;
    out.Append(text, nLength);
    if (spec.bLeft)
        out += pad;
}

// One number through the C library, in a specification of its own making.
template <class VALUE>
void appendNumber(CString& out, const Spec& spec, const char* length, VALUE value) {
    char format[48];
    if (spec.nPrecision >= 0)
        snprintf(format, sizeof(format), "%%%s%d.%d%s%c", spec.flags, spec.nWidth, spec.nPrecision, length,
                 spec.conversion);
    else if (spec.nWidth > 0)
        snprintf(format, sizeof(format), "%%%s%d%s%c", spec.flags, spec.nWidth, length, spec.conversion);
    else
        snprintf(format, sizeof(format), "%%%s%s%c", spec.flags, length, spec.conversion);
    const int n = snprintf(NULL, 0, format, value);
    if (n <= 0)
        return;
    CString number;
    snprintf(number.GetBuffer(n), (size_t)n + 1, format, value);
    number.ReleaseBuffer(n);
    out += number;
}

LONGLONG signExtended(LONGLONG value, int nBits) {
    return nBits == 8 ? (signed char)value : nBits == 16 ? (short)value : nBits == 32 ? (LONG)value : value;
}

ULONGLONG zeroExtended(LONGLONG value, int nBits) {
    return nBits == 64 ? (ULONGLONG)value : (ULONGLONG)value & ((1ull << nBits) - 1);
}

CString narrowed([[maybe_unused]] const void* p, [[maybe_unused]] int nMax) {
#if defined(_WIN32)
    const WCHAR* wide = (const WCHAR*)p;
    int nWide = 0;
    while (wide[nWide] != 0 && (nMax < 0 || nWide < nMax))
        nWide++;
    const int n = nWide > 0 ? ::WideCharToMultiByte(CP_ACP, 0, wide, nWide, NULL, 0, NULL, NULL) : 0;
    CString text;
    if (n > 0)
        ::WideCharToMultiByte(CP_ACP, 0, wide, nWide, text.GetBufferSetLength(n), n, NULL, NULL);
    return text;
#else
    ASSERT(p == NULL); // wide texts are a Windows matter
    return CString();
#endif
}

void appendText(CString& out, const Spec& spec, ArgSource& args) {
    const bool bWide = spec.bWide || (spec.conversion == 'S' && spec.nBits != 16);
    const void* p = args.pointer();
    if (p == NULL) {
        appendPadded(out, spec, "(null)", 6);
    } else if (bWide) {
        const CString text = narrowed(p, spec.nPrecision);
        appendPadded(out, spec, text, text.GetLength());
    } else {
        const size_t nMax = spec.nPrecision >= 0 ? (size_t)spec.nPrecision : (size_t)INT_MAX;
        appendPadded(out, spec, (LPCSTR)p, (int)strnlen((LPCSTR)p, nMax));
    }
}

void appendValue(CString& out, const Spec& spec, ArgSource& args) {
    switch (spec.conversion) {
    case 'd':
    case 'i':
        appendNumber(out, spec, "ll", signExtended(args.integer(spec.nBits), spec.nBits));
        break;
    case 'u':
    case 'x':
    case 'X':
    case 'o':
        appendNumber(out, spec, "ll", zeroExtended(args.integer(spec.nBits), spec.nBits));
        break;
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
    case 'a':
    case 'A':
        appendNumber(out, spec, "", args.real());
        break;
    case 'c':
    case 'C': {
        const char ch = (char)args.integer(32);
        appendPadded(out, spec, &ch, 1);
        break;
    }
    case 's':
    case 'S':
        appendText(out, spec, args);
        break;
    case 'p': {
        char digits[20];
        const int n = snprintf(digits, sizeof(digits), "%0*llX", (int)sizeof(void*) * 2,
                               (unsigned long long)(UINT_PTR)args.pointer());
        appendPadded(out, spec, digits, n);
        break;
    }
    case 'n': // a value is written nowhere
        args.pointer();
        break;
    case '%':
        out += '%';
        break;
    default: // not a conversion: the letter stands for itself
        if (spec.conversion != 0)
            out += spec.conversion;
        break;
    }
}

CString formatted(LPCSTR pszFormat, ArgSource& args) {
    CString out;
    for (const char* p = pszFormat != NULL ? pszFormat : ""; *p != 0;) {
        const char* percent = strchr(p, '%');
        out.Append(p, percent != NULL ? (int)(percent - p) : (int)strlen(p));
        if (percent == NULL)
            break;
        p = percent + 1;
        const Spec spec = readSpec(p, args);
        appendValue(out, spec, args);
    }
    return out;
}

} // namespace

void CStringA::FormatArgs(LPCSTR pszFormat, const OrvFormatArg* pArgs, size_t nArgs) {
    ASSERT(pszFormat != NULL);
    ArraySource args(pArgs, nArgs);
    *this = formatted(pszFormat, args);
}

void CStringA::AppendFormatArgs(LPCSTR pszFormat, const OrvFormatArg* pArgs, size_t nArgs) {
    ASSERT(pszFormat != NULL);
    ArraySource args(pArgs, nArgs);
    Append(formatted(pszFormat, args));
}

void CStringA::FormatV(LPCSTR pszFormat, va_list args) {
    ASSERT(pszFormat != NULL);
    VaListSource source(args);
    *this = formatted(pszFormat, source);
}

void CStringA::AppendFormatV(LPCSTR pszFormat, va_list args) {
    ASSERT(pszFormat != NULL);
    VaListSource source(args);
    Append(formatted(pszFormat, source));
}
