// A static library needs a source; everything the native tests share is in headers.
namespace orv::test {
int nativeSupport;
}
