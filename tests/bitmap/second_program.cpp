// bitmap_second FILE: a second program that wants the first one's file.

#include <orvfc/bitmap/cdib.h>

#include "second.h"

int main(int argc, char** argv) {
    if (argc != 2 || !AfxWinInit(::GetModuleHandleA(NULL), NULL, ::GetCommandLineA(), 0))
        return 2;
    COrvDib read, attached, copy(CSize(1, 1), 24);
    CFile file;
    int result = secondNothing;
    if (file.Open(argv[1], CFile::modeRead | CFile::shareDenyNone)) {
        if (read.Read(&file) && read.GetPixelIndex(0, 0) == secondPixel)
            result |= secondReads;
        file.Close();
    }
    if (attached.AttachMapFile(argv[1], 1))
        result |= secondAttaches;
    attached.Empty();
    if (copy.CreateSection() != NULL && copy.CopyToMapFile(argv[1]))
        result |= secondReplaces;
    return result;
}
