#pragma once

#include "OrvGraphic.h"

#include <orvfc/services/DynamicArray.h>

// A set of pattern objects: built in, or loaded from a line-type file (docs/line-type-file.md).
class ORVFC_API COrvDrawManage : public CObject {
    DECLARE_SERIAL(COrvDrawManage)

public:
    int m_nVersion;    // of the line-type file, 0 until one was loaded
    CString m_strName; // stored in the file behind the version

    COrvDrawManage();
    ~COrvDrawManage() override;

    // Version 0 and no pattern; the name stays.
    void Init();
    void EmptyAll();
    // The built-in set: zig-zag, dash, dot, dash-dot, dash-dot-dot. It has no railway, so 101 is the zig-zag.
    void InitToGerApp();

    // The first pattern of that type, null when there is none. It belongs to the set. The second form also
    // sets the pattern's width and colour.
    COrvDrawBasicDash* GetDashFromType(int nType);
    COrvDrawBasicDash* GetDashFromType(int nType, int nWidth, COLORREF crColor);

    // Draws the current path of pDC, which is flattened first and stays in the device context; width in
    // logical units. Below width 1 the pattern draws with its defaults. Returns 1, also when the pattern
    // stopped half-way: the zig-zag draws one tent for a whole path. Type 0, unless the set has a pattern of
    // that number, strokes the path with a solid pen and uses it up. Without a pattern for the type nothing
    // is drawn and the result is 0. The device context has the same objects selected afterwards; its current
    // position moves.
    int Draw(CDC* pDC, int nType, int nWidth, COLORREF crColor);

    // Stores every pattern, but loads only types 5 and 101 (as the zig-zag): the fields of any other entry
    // are not read, and all that follows it in the file is read out of step. Older files are made that way; a
    // set that was saved as built in comes back with its zig-zag alone. What was loaded takes the place of
    // the patterns that were there; when loading throws, the set is as before.
    void Serialize(CArchive& ar) override;

    // The name only: a directory in strFile is dropped, so that the file is looked for in the current
    // directory. An empty name, or one that ends in a backslash, also means "orvDrawType.lin". Returns 1; 0
    // after telling the user in a message box what went wrong, with the set as before.
    int LoadFromFile(CString strFile);
    // The name as it is given; an empty one means "orvDrawType.lin" in the program's directory. Returns 1, or
    // 0 after a message box.
    int SaveToFile(CString strFile);

    void Dump(CDumpContext& dc) const override;

protected:
    // Reads the next pattern if it is of a type that is loaded (the caller owns it), else reads nothing and
    // gives null.
    COrvDrawBasicDash* SerializeLoadDash(CArchive& ar, int nType);

private:
    void Store(CArchive& ar);
    void Load(CArchive& ar);

    CDynamicPtrArray<COrvDrawBasicDash> m_dashes;
};

// Several sets, asked in order for a pattern. The first is the built-in one.
class ORVFC_API COrvMainDrawManage {
public:
    // With an empty strPath the path name is the program's directory. Another path is not kept: the path name
    // is then empty until SetPathName.
    explicit COrvMainDrawManage(CString strPath);
    ~COrvMainDrawManage();
    COrvMainDrawManage(const COrvMainDrawManage&) = delete;
    COrvMainDrawManage& operator=(const COrvMainDrawManage&) = delete;

    // Adds a built-in set behind those that are there.
    void Init();
    // Removes all sets, the built-in one too.
    void EmptyAll();
    void SetPathName(CString strPathName) { m_strPathName = strPathName; }

    // The first pattern of that type in any set, null when there is none. The second form then loads strFile
    // as one more set (see COrvDrawManage::LoadFromFile), which stays when it could be loaded.
    COrvDrawBasicDash* GetLineType(int nType);
    COrvDrawBasicDash* GetLineType(int nType, CString strFile);

    // As COrvDrawManage::Draw, except that type 0 has no pen of its own: nothing is drawn, 0.
    int Draw(CDC* pDC, int nType, int nWidth, COLORREF crColor);

    // Saves every set in order, all under the path name (the last one remains), which means "orvDrawType.lin"
    // in the program's directory when it is empty or ends in a backslash. 0 when a set could not be saved.
    int Save();
    // Loads strFile as one more set. 1, or 0 after a message box and without the set.
    int Load(CString strFile);

    void Dump(CDumpContext& dc) const;

protected:
    CDynamicPtrArray<COrvDrawManage> m_sets;
    CString m_strPathName; // a file or, with a backslash at its end, a directory
    int m_nState;          // 0; nothing reads it
};

// Draws the current path of pDC as a track with the gauge nWidth, without any manager. Types other than 101
// draw nothing and give 0.
ORVFC_API int DrawSpeciaPath(CDC* pDC, int nType, int nWidth);
