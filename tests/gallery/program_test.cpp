// The whole program, started as a user starts it, in a folder of its own.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/driven_program.h"
#include "support/scratch_folder.h"

using namespace std::string_view_literals;

namespace {

struct Outcome {
    DWORD status = 0;
    std::string output; // both streams
};

std::string readAll(HANDLE pipe) {
    std::string text;
    char portion[4096];
    for (DWORD read = 0; ::ReadFile(pipe, portion, sizeof portion, &read, NULL) && read > 0;)
        text.append(portion, read);
    return text;
}

class Program : public testing::Test, protected orv::test::ScratchFolder {
protected:
    // In the test's folder.
    Outcome run(const std::string& arguments) const {
        SECURITY_ATTRIBUTES inherit = {sizeof inherit, NULL, TRUE};
        HANDLE readEnd = NULL;
        STARTUPINFOA start = {};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        EXPECT_TRUE(::CreatePipe(&readEnd, &start.hStdError, &inherit, 0));
        ::SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
        start.hStdOutput = start.hStdError;
        std::string command = "\"" + orv::test::programBeside("gallery.exe") + "\" " + arguments;
        PROCESS_INFORMATION process = {};
        Outcome outcome;
        const BOOL started =
            ::CreateProcessA(NULL, command.data(), NULL, NULL, TRUE, 0, NULL, path(), &start, &process);
        ::CloseHandle(start.hStdError);
        EXPECT_TRUE(started) << command;
        if (started) {
            outcome.output = readAll(readEnd);
            ::WaitForSingleObject(process.hProcess, INFINITE);
            ::GetExitCodeProcess(process.hProcess, &outcome.status);
            ::CloseHandle(process.hThread);
            ::CloseHandle(process.hProcess);
        }
        ::CloseHandle(readEnd);
        return outcome;
    }
};

unsigned bigEndian(const std::string& bytes, size_t at) {
    unsigned value = 0;
    for (size_t i = at; i < at + 4; ++i)
        value = value << 8 | static_cast<unsigned char>(bytes.at(i));
    return value;
}

// "WIDTHxHEIGHT", or what the file begins with when it is no complete PNG.
std::string pngSize(const std::string& bytes) {
    const bool complete =
        bytes.size() > 45 && bytes.substr(1, 3) == "PNG" && bytes.substr(bytes.size() - 8, 4) == "IEND";
    return complete ? std::to_string(bigEndian(bytes, 16)) + "x" + std::to_string(bigEndian(bytes, 20))
                    : "not a PNG: " + bytes.substr(0, 8);
}

// A bitmap file as the system itself reads it.
class Bitmap {
public:
    explicit Bitmap(const char* file) {
        m_dc.CreateCompatibleDC(NULL);
        m_bitmap.Attach(::LoadImageA(NULL, file, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
        m_previous = m_dc.SelectObject(&m_bitmap);
        m_bitmap.GetBitmap(&m_size);
    }
    ~Bitmap() { m_dc.SelectObject(m_previous); }
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;

    int width() const { return m_size.bmWidth; }
    int height() const { return m_size.bmHeight; }
    COLORREF at(int x, int y) const { return m_dc.GetPixel(x, y); }

    // Lengths of the runs along a row that are not paper and of the paper between them, from the first run
    // on.
    std::vector<int> runs(int y) const {
        std::vector<int> lengths;
        for (int x = 0; x < width(); ++x) {
            const bool ink = at(x, y) != RGB(255, 255, 255);
            if (ink != (lengths.size() % 2 == 1))
                lengths.push_back(0);
            if (!lengths.empty())
                ++lengths.back();
        }
        if (lengths.size() % 2 == 0 && !lengths.empty())
            lengths.pop_back(); // the paper behind the last run
        return lengths;
    }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_previous = NULL;
    BITMAP m_size = {};
};

const char* const levelLine = "LINESTRING(0 0,200 0)";

TEST_F(Program, BadFilesAreNamedAndLeaveNoPicture) {
    struct {
        std::string_view bytes;
        const char* message;
    } const rows[] = {
        {"# x\r\nLINESTRING(1 2,3 nan)\r\n", "in.wkt:2:18: "},
        {"\x89PNG\r\n\x1A\n\0\0\0\rIHDR"sv, "in.wkt:1:1: "},
        {"POINT(1 2)\nLINESTRING EMPTY\n", "in.wkt:1:1: there is no line"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.message);
        write("in.wkt", row.bytes);
        const Outcome outcome = run("--draw in.wkt --out out.png");
        EXPECT_EQ(outcome.status, 1u);
        EXPECT_EQ(outcome.output.find(row.message), 0u) << outcome.output;
        EXPECT_EQ(names(), (std::set<std::string>{"in.wkt"}));
    }
}

TEST_F(Program, FailureKeepsTheOldPicture) {
    write("good.wkt", levelLine);
    write("bad.wkt", "LINESTRING(1 2)");
    write("out.png", "old");
    EXPECT_EQ(run("--draw good.wkt --draw bad.wkt --out out.png").status, 1u);
    EXPECT_EQ(read("out.png"), "old");
    EXPECT_EQ(run("--draw good.wkt --out out.png").status, 0u);
    EXPECT_EQ(pngSize(read("out.png")), "1200x900");
    EXPECT_EQ(names().size(), 3u);
}

TEST_F(Program, StatusTellsWhatIsWrong) {
    write("in.wkt", levelLine);
    struct {
        const char* arguments;
        DWORD status;
        const char* part; // of what is said
    } const rows[] = {
        {"", 0, "--draw FILE"},
        {"--help", 0, "Exit status"},
        {"--draw in.wkt --out out.png --help", 0, "Exit status"},
        {"--draw in.wkt", 2, "needs --out"},
        {"--draw missing.wkt --out out.png", 1, "missing.wkt: "},
        {"--draw . --out out.png", 1, ".: "},
        {"--draw in.wkt --out missing/out.png", 4, "missing/out.png: "},
        {"--tour in.wkt", 4, "in.wkt: "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.arguments);
        const Outcome outcome = run(row.arguments);
        EXPECT_EQ(outcome.status, row.status);
        EXPECT_NE(outcome.output.find(row.part), std::string::npos) << outcome.output;
        EXPECT_EQ(names(), (std::set<std::string>{"in.wkt"}));
    }
}

TEST_F(Program, DrawsTheLineInItsType) {
    write("in.wkt", levelLine);
    struct {
        const char* style;
        std::vector<int> start; // first runs of ink and paper along the line
    } const rows[] = {
        {"--type 2", {5, 5, 5, 5}},
        {"", {17, 5, 5, 5, 17}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.style);
        const Outcome outcome = run(
            std::string("--draw in.wkt --color #1020F0 --out out.bmp --size 301x41 --plane ") + row.style);
        ASSERT_EQ(outcome.status, 0u) << outcome.output;
        const Bitmap picture(path("out.bmp"));
        ASSERT_EQ(picture.width(), 301);
        ASSERT_EQ(picture.height(), 41);
        std::vector<int> runs = picture.runs(20);
        ASSERT_GE(runs.size(), row.start.size());
        runs.resize(row.start.size());
        EXPECT_EQ(runs, row.start);
        EXPECT_EQ(picture.at(5, 20), RGB(0x10, 0x20, 0xF0));
    }
    ASSERT_EQ(run("--draw in.wkt --type 0 --width 5 --color FF0000 --out out.bmp --size 301x41").status, 0u);
    {
        const Bitmap solid(path("out.bmp"));
        EXPECT_EQ(solid.runs(20).size(), 1u);
        EXPECT_EQ(solid.at(150, 18), RGB(255, 0, 0));
        EXPECT_EQ(solid.at(150, 22), RGB(255, 0, 0));
        EXPECT_EQ(solid.at(150, 24), RGB(255, 255, 255));
    }
    ASSERT_EQ(run("--draw in.wkt --type 101 --width 12 --out out.bmp --size 301x41").status, 0u);
    const Bitmap railway(path("out.bmp"));
    EXPECT_EQ(railway.runs(14).size(), 1u); // an unbroken rail
    EXPECT_EQ(railway.runs(26).size(), 1u);
    EXPECT_GE(railway.runs(20).size(), 13u); // open and filled blocks of 20 between them
}

TEST_F(Program, EveryRingIsALineOfItsOwn) {
    // Two squares far apart: nothing may be drawn between them.
    write("in.wkt", "MULTIPOLYGON(((0 0,10 0,10 10,0 10,0 0)),((90 0,100 0,100 10,90 10,90 0)))");
    ASSERT_EQ(run("--draw in.wkt --out out.bmp --plane --size 401x101 --width 3 --type 0").status, 0u);
    const Bitmap picture(path("out.bmp"));
    EXPECT_NE(picture.at(4, 50), RGB(255, 255, 255)) << "the edge that closes the ring";
    for (int y = 0; y < 101; ++y)
        for (int x = 80; x < 320; ++x)
            ASSERT_EQ(picture.at(x, y), RGB(255, 255, 255)) << x << "," << y;
}

TEST_F(Program, DrawsPictures) {
    write("in.wkt", levelLine);
    write("铁路.wkt", levelLine);
    std::string layers;
    for (const char* name : {"graticule", "coast", "rivers", "canal", "other-railways", "railway"})
        layers += std::string(" --draw \"" SAMPLES "/east-china/") + name + ".wkt\"";
    const struct {
        std::string arguments, picture, size;
    } rows[] = {{"--draw in.wkt --out out.png --size 1x1", "out.png", "1x1"},
                {"--draw 铁路.wkt --out 地图.png", "地图.png", "1200x900"},
                {"--out map.png" + layers, "map.png", "1200x900"}};
    for (const auto& row : rows) {
        const Outcome outcome = run(row.arguments);
        EXPECT_EQ(outcome.status, 0u) << outcome.output;
        EXPECT_EQ(pngSize(read(row.picture.c_str())), row.size);
    }
}

TEST_F(Program, TourDrawsEverySheet) {
    const Outcome outcome = run("--tour .");
    EXPECT_EQ(outcome.status, 0u) << outcome.output;
    EXPECT_NE(outcome.output.find("lines.png"), std::string::npos) << outcome.output;
    EXPECT_EQ(names(), (std::set<std::string>{
                           "about.png", "outlook-bar.png", "text-page.png", "bitmap-1.bmp", "bitmap-4.bmp",
                           "bitmap-8.bmp", "bitmap-16.bmp", "bitmap-24.bmp", "bitmap-32.bmp", "bitmaps.png",
                           "lines.png", "pickers.png", "stations.png", "texts.png", "time-scales.png"}));
    EXPECT_EQ(pngSize(read("lines.png")), "1280x1160");
}

} // namespace
