// The stream forms of stored values: whatever the bytes are, a value is read whole or stays as it was, and
// what was read is stored and read again as the same. The same for the check of version blocks, which only
// has to end.

#include <orvfc/services/StoredStreams.h>
#include <orvfc/services/VersionBlock.h>

#include <sanitizer/lsan_interface.h>

#include <stdint.h>
#include <stdlib.h>
#include <unordered_set>

using orv::StreamBytes;
using orv::StreamOutcome;
using orv::StreamView;

namespace {

void check(bool good) {
    if (!good)
        abort();
}

// Two objects may point to one another. Deletes the one that it points to.
class Knot : public CObject {
    DECLARE_SERIAL(Knot)

public:
    ~Knot() override { delete link_; }
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring())
            ar << link_ << n_;
        else
            ar >> link_ >> n_;
    }

    CObject* link_ = nullptr;
    LONG n_ = 0;
};

IMPLEMENT_SERIAL(Knot, CObject, 1)

template <class Collection>
StreamBytes stored(Collection& collection) {
    StreamBytes bytes;
    check(orv::storeObject(collection, bytes) == StreamOutcome::good);
    return bytes;
}

template <class Array>
void checkArray(StreamView bytes) {
    Array array;
    array.SetSize(1);
    const StreamBytes before = stored(array);
    if (orv::loadStream(bytes, static_cast<CObject&>(array)) != StreamOutcome::good) {
        check(stored(array) == before);
        return;
    }
    Array again;
    const StreamBytes after = stored(array);
    check(orv::loadStream(after, static_cast<CObject&>(again)) == StreamOutcome::good &&
          stored(again) == after);
}

void checkTexts(StreamView bytes) {
    CStringList list;
    list.AddTail("before");
    if (orv::loadStream(bytes, list) != StreamOutcome::good)
        check(list.GetCount() == 1);
    check(list.GetHead() == "before");
    CStringList again;
    const StreamBytes after = stored(list);
    check(orv::loadStream(after, again) == StreamOutcome::good && stored(again) == after);
}

// All objects that can be reached from a list, each once.
void collect(CObject* object, std::unordered_set<CObject*>& found) {
    if (object == nullptr || !found.insert(object).second)
        return;
    if (auto* list = DYNAMIC_DOWNCAST(CObList, object))
        for (POSITION pos = list->GetHeadPosition(); pos != nullptr;)
            collect(list->GetNext(pos), found);
    if (auto* array = DYNAMIC_DOWNCAST(CObArray, object))
        for (INT_PTR i = 0; i < array->GetSize(); ++i)
            collect(array->GetAt(i), found);
    if (auto* knot = DYNAMIC_DOWNCAST(Knot, object))
        collect(knot->link_, found);
}

void checkObjects(StreamView bytes) {
    // What a damaged stream has given stays undeleted, since it may have two owners.
    __lsan_disable();
    CObList list;
    if (orv::loadStream(bytes, list) != StreamOutcome::good)
        check(list.IsEmpty());
    const StreamBytes after = stored(list);
    std::unordered_set<CObject*> objects;
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;)
        collect(list.GetNext(pos), objects);
    for (CObject* object : objects)
        if (auto* knot = DYNAMIC_DOWNCAST(Knot, object))
            knot->link_ = nullptr;
    for (CObject* object : objects)
        delete object;
    __lsan_enable();
}

void checkRecords(StreamView bytes) {
    RECT rect = {1, 2, 3, 4};
    check((orv::loadStream(bytes, rect) == StreamOutcome::good) == (bytes.size() >= sizeof(rect)));
    POINT point = {1, 2};
    if (orv::loadStream(bytes, point) != StreamOutcome::good)
        check(point.x == 1 && point.y == 2);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const StreamView bytes(data, size);
    checkArray<CByteArray>(bytes);
    checkArray<CWordArray>(bytes);
    checkArray<CDWordArray>(bytes);
    checkArray<CStringArray>(bytes);
    checkTexts(bytes);
    checkObjects(bytes);
    checkRecords(bytes);
    if (orv::isSoundVersionBlock(bytes))
        check(orv::versionBlockRoom(bytes) > size);
    return 0;
}
