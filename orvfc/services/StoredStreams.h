#pragma once

// The stream forms of values that a registry store keeps as plain bytes: what an archive over memory writes
// and reads. Nothing is thrown. Bytes are not trusted: a stream that is cut short or whose counts lie ends as
// "damaged" and leaves the value as it was.

#include <afxcoll.h>

#include <span>
#include <vector>

namespace orv {

enum class StreamOutcome {
    good,
    damaged, // the archive found something wrong
    noMemory,
    failed, // anything else that an object's own Serialize throws
};

using StreamBytes = std::vector<BYTE>;
using StreamView = std::span<const BYTE>;

// Storing fills bytes, or leaves them empty when it fails. Collections and objects: whatever their Serialize
// writes.
StreamOutcome storeObject(CObject& object, StreamBytes& bytes);
// A count of 32 bits, then each element: not the array's own form, so that loading does not understand it.
// Values written so are in use.
StreamOutcome storeWords(const CWordArray& words, StreamBytes& bytes);
StreamOutcome storeRect(const RECT& rect, StreamBytes& bytes);
// An array of five numbers: x, y and three zeros.
StreamOutcome storePoint(POINT point, StreamBytes& bytes);

// Loading by the value's own Serialize: arrays are replaced, lists get the elements behind those they have. A
// list of objects keeps nothing of a damaged stream, and the objects read by then stay undeleted: the stream
// may have put one of them into the list and into the hands of another, which deletes it as well. Any other
// object is left as its Serialize leaves it.
StreamOutcome loadStream(StreamView bytes, CStringList& list);
StreamOutcome loadStream(StreamView bytes, CObList& list);
StreamOutcome loadStream(StreamView bytes, CObject& object);
StreamOutcome loadStream(StreamView bytes, RECT& rect);
// An array of at least two numbers.
StreamOutcome loadStream(StreamView bytes, POINT& point);

// nLength bytes: those of the pointer itself, as far as they reach, then zeros; and one more behind them, not
// zero, which keeps the system from adding a closing zero to the text it takes them for.
StreamBytes pointerBytes(const void* pointer, size_t nLength);

} // namespace orv
