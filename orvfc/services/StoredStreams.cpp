#include "StoredStreams.h"

#include <functional>
#include <limits.h>
#include <new>
#include <string.h>

namespace orv {

namespace {

constexpr UINT kGrowBytes = 4096;
constexpr INT_PTR kPointElements = 5;

StreamOutcome outcomeOf(const std::function<void()>& action) {
    try {
        action();
        return StreamOutcome::good;
    } catch (CArchiveException* e) {
        e->Delete();
        return StreamOutcome::damaged;
    } catch (CMemoryException* e) {
        e->Delete();
        return StreamOutcome::noMemory;
    } catch (const std::bad_alloc&) {
        return StreamOutcome::noMemory;
    } catch (CException* e) {
        e->Delete();
        return StreamOutcome::failed;
    } catch (...) {
        return StreamOutcome::failed;
    }
}

StreamOutcome store(StreamBytes& bytes, const std::function<void(CArchive&)>& write) {
    bytes.clear();
    return outcomeOf([&] {
        CMemFile file(kGrowBytes);
        CArchive ar(&file, CArchive::store | CArchive::bNoFlushOnDelete);
        write(ar);
        ar.Close();
        StreamBytes written(static_cast<size_t>(file.GetLength()));
        file.SeekToBegin();
        file.Read(written.data(), static_cast<UINT>(written.size()));
        bytes.swap(written);
    });
}

StreamOutcome load(StreamView bytes, const std::function<void(CArchive&)>& read) {
    if (bytes.size() > INT_MAX)
        return StreamOutcome::damaged;
    return outcomeOf([&] {
        // Only read from.
        CMemFile file(const_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
        CArchive ar(&file, CArchive::load | CArchive::bNoFlushOnDelete);
        read(ar);
    });
}

template <class List>
StreamOutcome loadList(StreamView bytes, List& list) {
    const INT_PTR nBefore = list.GetCount();
    const StreamOutcome outcome = load(bytes, [&](CArchive& ar) { list.Serialize(ar); });
    while (outcome != StreamOutcome::good && list.GetCount() > nBefore)
        list.RemoveTail();
    return outcome;
}

} // namespace

StreamOutcome storeObject(CObject& object, StreamBytes& bytes) {
    return store(bytes, [&](CArchive& ar) { object.Serialize(ar); });
}

StreamOutcome storeWords(const CWordArray& words, StreamBytes& bytes) {
    return store(bytes, [&](CArchive& ar) {
        ar << static_cast<DWORD>(words.GetSize());
        for (INT_PTR i = 0; i < words.GetSize(); ++i)
            ar << words[i];
    });
}

StreamOutcome storeRect(const RECT& rect, StreamBytes& bytes) {
    return store(bytes, [&](CArchive& ar) { ar << rect; });
}

StreamOutcome storePoint(POINT point, StreamBytes& bytes) {
    return store(bytes, [&](CArchive& ar) {
        CDWordArray numbers;
        numbers.SetSize(kPointElements);
        numbers[0] = static_cast<DWORD>(point.x);
        numbers[1] = static_cast<DWORD>(point.y);
        numbers.Serialize(ar);
    });
}

StreamOutcome loadStream(StreamView bytes, CStringList& list) {
    return loadList(bytes, list);
}

StreamOutcome loadStream(StreamView bytes, CObList& list) {
    return loadList(bytes, list);
}

StreamOutcome loadStream(StreamView bytes, CObject& object) {
    return load(bytes, [&](CArchive& ar) { object.Serialize(ar); });
}

StreamOutcome loadStream(StreamView bytes, RECT& rect) {
    RECT loaded;
    const StreamOutcome outcome = load(bytes, [&](CArchive& ar) { ar >> loaded; });
    if (outcome == StreamOutcome::good)
        rect = loaded;
    return outcome;
}

StreamOutcome loadStream(StreamView bytes, POINT& point) {
    CDWordArray numbers;
    const StreamOutcome outcome = load(bytes, [&](CArchive& ar) { numbers.Serialize(ar); });
    if (outcome != StreamOutcome::good)
        return outcome;
    if (numbers.GetSize() < 2)
        return StreamOutcome::damaged;
    point.x = static_cast<LONG>(numbers[0]);
    point.y = static_cast<LONG>(numbers[1]);
    return StreamOutcome::good;
}

StreamBytes pointerBytes(const void* pointer, size_t nLength) {
    StreamBytes bytes(nLength + 1);
    memcpy(bytes.data(), &pointer, nLength < sizeof(pointer) ? nLength : sizeof(pointer));
    bytes.back() = 0xFF;
    return bytes;
}

} // namespace orv
