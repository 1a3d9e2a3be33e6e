#include "Options.h"

#include <charconv>
#include <getopt.h>
#include <string_view>

namespace gallery {

const char* const helpText =
    "Shows what the ORVFC library draws.\n"
    "\n"
    "  gallery --tour DIR\n"
    "      Draws every sheet of the gallery into DIR, one PNG picture each.\n"
    "\n"
    "  gallery --window\n"
    "      Opens a window of pages to look at and to try.\n"
    "\n"
    "  gallery --draw FILE --out PICTURE [--type N] [--width W] [--color #RRGGBB] [--size WxH] [--plane]\n"
    "      Draws the lines of FILE in a line type of the library.\n"
    "\n"
    "FILE is text, one geometry a line: LINESTRING, MULTILINESTRING, POLYGON, MULTIPOLYGON (well-known "
    "text).\n"
    "POINT is ignored, as are blank lines and what follows a '#'; Z and M are read and left out.\n"
    "\n"
    "  --draw FILE      may be repeated: every file is a layer over the ones before, all in one picture\n"
    "  --out PICTURE    a name that ends in .png or .bmp\n"
    "  --type N         0 solid, 1 dash, 2 dot, 3 dash-dot (the default), 4 dash-dot-dot, 101 railway\n"
    "  --width W        1 to 200 pixels, 1 when not given; of the railway the gauge, 10 when not given\n"
    "  --color #RRGGBB  black when not given, the '#' may be left out; the railway is always black\n"
    "  --size WxH       of the picture, each 1 to 16384; 1200x900 when not given\n"
    "  --plane          takes all coordinates as they are; without it, when all lie within +-180 and +-90, "
    "they\n"
    "                   are longitude and latitude, and x is shortened by the cosine of the middle latitude\n"
    "                   (equirectangular)\n"
    "\n"
    "--type, --width and --color hold for the --draw before them; ahead of the first --draw, for all "
    "layers.\n"
    "The picture appears under its name only when it is complete.\n"
    "\n"
    "Exit status: 0 done, 1 a file to draw cannot be read, 2 the command line is wrong, 4 a picture cannot "
    "be\n"
    "made or written.\n";

namespace {

constexpr int largestWidth = 200;
constexpr int largestSize = 16384;
constexpr int drawableTypes[] = {0, 1, 2, 3, 4, 101};

// The whole of text as a number between least and most.
bool readInt(std::string_view text, int least, int most, int& value) {
    const char* end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, value);
    return fault == std::errc() && stop == end && value >= least && value <= most;
}

bool readType(std::string_view text, int& value) {
    for (int type : drawableTypes) {
        if (readInt(text, type, type, value)) {
            return true;
        }
    }
    return false;
}

bool readSize(std::string_view text, int& width, int& height) {
    const size_t cross = text.find_first_of("xX");
    return cross != text.npos && readInt(text.substr(0, cross), 1, largestSize, width) &&
           readInt(text.substr(cross + 1), 1, largestSize, height);
}

bool readColor(std::string_view text, COLORREF& color) {
    if (text.substr(0, 1) == "#") {
        text.remove_prefix(1);
    }
    unsigned value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, value, 16);
    if (text.size() != 6 || fault != std::errc() || stop != end) {
        return false;
    }
    color = COLORREF((value & 0xFF) << 16 | (value & 0xFF00) | value >> 16);
    return true;
}

bool isPictureName(std::string_view name) {
    for (const char* ending : {".png", ".bmp", ".PNG", ".BMP"}) {
        if (name.size() > 4 && name.substr(name.size() - 4) == ending) {
            return true;
        }
    }
    return false;
}

struct Reading {
    Options& options;
    Layer start; // what every new layer begins with

    // Where --type, --width and --color go to.
    Layer& style() { return options.layers.empty() ? start : options.layers.back(); }
};

struct Rule {
    const char* name;
    int argument;
    bool (*take)(Reading& reading, const char* value); // false: the value is refused, with the text beside it
    const char* refusal;
};

const Rule rules[] = {
    {"tour", required_argument,
     [](Reading& r, const char* value) {
         r.options.task = Options::Task::tour;
         r.options.tourFolder = value;
         return *value != '\0';
     },
     "--tour needs the name of a folder"},
    {"window", no_argument,
     [](Reading& r, const char*) {
         r.options.task = Options::Task::window;
         return r.options.window = true;
     },
     ""},
    {"draw", required_argument,
     [](Reading& r, const char* value) {
         r.options.task = Options::Task::draw;
         r.start.file = value;
         r.options.layers.push_back(r.start);
         return *value != '\0';
     },
     "--draw needs the name of a file"},
    {"out", required_argument,
     [](Reading& r, const char* value) {
         r.options.picture = value;
         return isPictureName(value);
     },
     "--out needs a name that ends in .png or .bmp"},
    {"type", required_argument, [](Reading& r, const char* value) { return readType(value, r.style().type); },
     "--type is one of 0, 1, 2, 3, 4 and 101"},
    {"width", required_argument,
     [](Reading& r, const char* value) { return readInt(value, 1, largestWidth, r.style().width); },
     "--width is a number from 1 to 200"},
    {"color", required_argument,
     [](Reading& r, const char* value) { return readColor(value, r.style().color); },
     "--color is six hexadecimal digits, such as #1F4E9D"},
    {"size", required_argument,
     [](Reading& r, const char* value) {
         return readSize(value, r.options.pictureWidth, r.options.pictureHeight);
     },
     "--size is a width and a height from 1 to 16384, such as 1200x900"},
    {"plane", no_argument, [](Reading& r, const char*) { return r.options.plane = true; }, ""},
};

constexpr int helpKey = 1;
constexpr int firstRuleKey = 2;

std::vector<option> longOptions() {
    std::vector<option> all = {{"help", no_argument, nullptr, helpKey}};
    for (const Rule& rule : rules) {
        all.push_back({rule.name, rule.argument, nullptr, int(firstRuleKey + (&rule - rules))});
    }
    all.push_back({nullptr, 0, nullptr, 0});
    return all;
}

// The whole command line belongs to one task.
const char* contradiction(const Options& options) {
    const bool tour = !options.tourFolder.empty();
    if (tour && (!options.layers.empty() || !options.picture.empty())) {
        return "--tour stands alone, without --draw and --out";
    }
    if (options.window && (tour || !options.layers.empty() || !options.picture.empty())) {
        return "--window stands alone";
    }
    if (!options.layers.empty() && options.picture.empty()) {
        return "--draw needs --out, the name of the picture";
    }
    return options.layers.empty() && !tour && !options.window
               ? "nothing to do: give --draw, --tour or --window"
               : nullptr;
}

} // namespace

bool parseOptions(int argc, char** argv, Options& options, std::string& message) {
    const std::vector<option> known = longOptions();
    Reading reading{options, {}};
    optind = 1; // getopt goes on where it stopped last
    for (int key; (key = getopt_long(argc, argv, "", known.data(), nullptr)) != -1;) {
        if (key == helpKey) {
            options = {};
            return true;
        }
        if (key < firstRuleKey || key == '?') {
            return false; // getopt has said why
        }
        const Rule& rule = rules[key - firstRuleKey];
        if (!rule.take(reading, optarg)) {
            message = rule.refusal;
            return false;
        }
    }
    if (optind < argc) {
        message = std::string("not an option: ") + argv[optind];
        return false;
    }
    const char* fault = argc > 1 ? contradiction(options) : nullptr;
    message = fault != nullptr ? fault : "";
    return fault == nullptr;
}

} // namespace gallery
