#include "Tasks.h"

#include "Fit.h"
#include "LineStyles.h"
#include "Picture.h"
#include "Progress.h"
#include "Wkt.h"

#include <algorithm>
#include <cstdio>

namespace gallery {
namespace {

constexpr size_t largestFile = size_t(1) << 30;
constexpr int railwayGauge = 10;
constexpr int railwayType = 101;

int widthOf(const Layer& layer) {
    return layer.width > 0 ? layer.width : layer.type == railwayType ? railwayGauge : 1;
}

ExitStatus fail(const std::string& message, ExitStatus status) {
    std::fprintf(stderr, "%s\n", message.c_str());
    return status;
}

std::string reasonOf(const CFileException& fault) {
    char text[512] = "";
    fault.GetErrorMessage(text, sizeof text);
    return text;
}

// On failure the reason is in message.
bool readBytes(const std::string& name, std::string& bytes, std::string& message, Progress& progress) {
    constexpr UINT portion = 1 << 20;
    CFile file;
    CFileException fault;
    if (!file.Open(name.c_str(), CFile::modeRead | CFile::shareDenyWrite, &fault)) {
        message = reasonOf(fault);
        return false;
    }
    // Read until the end, not to the length: it may change, and not everything that opens has one.
    const size_t length = size_t(file.GetLength());
    for (UINT read = portion; read != 0; bytes.resize(bytes.size() - portion + read)) {
        if (bytes.size() > largestFile) {
            message = "larger than 1 GiB";
            return false;
        }
        bytes.resize(bytes.size() + portion);
        read = file.Read(bytes.data() + bytes.size() - portion, portion);
        progress.show("reading", name, std::min(bytes.size(), length), length);
    }
    return true;
}

bool readFile(const std::string& name, std::string& bytes, std::string& message, Progress& progress) {
    bool done = false;
    try {
        done = readBytes(name, bytes, message, progress);
    } catch (CFileException* e) {
        message = reasonOf(*e);
        e->Delete();
    }
    if (!done) {
        message = name + ": " + message;
    }
    return done;
}

bool readLines(const std::string& name, WktLines& lines, std::string& message, Progress& progress) {
    std::string bytes;
    if (!readFile(name, bytes, message, progress)) {
        return false;
    }
    WktError error;
    if (!parseWkt(bytes, lines, error)) {
        message =
            name + ":" + std::to_string(error.line) + ":" + std::to_string(error.column) + ": " + error.text;
        return false;
    }
    if (lines.figures.empty()) {
        message = name + ":1:1: there is no line in this file";
        return false;
    }
    return true;
}

void drawFigure(CDC& dc, LineStyles& styles, const Layer& layer, const std::vector<POINT>& pixels,
                bool closed) {
    dc.BeginPath();
    dc.Polyline(pixels.data(), int(pixels.size()));
    if (closed) {
        dc.CloseFigure();
    }
    dc.EndPath();
    styles.draw(dc, layer.type, widthOf(layer), layer.color);
    dc.AbortPath();
}

void drawLayer(CDC& dc, LineStyles& styles, const Layer& layer, const WktLines& lines, const Fit& fit,
               Progress& progress) {
    size_t done = 0;
    for (const WktFigure& figure : lines.figures) {
        const std::vector<POINT> pixels = fit.toPixels(lines, figure);
        if (pixels.size() > 1) {
            drawFigure(dc, styles, layer, pixels, figure.closed && pixels.size() > 2);
        }
        done += figure.count;
        progress.show("drawing", layer.file, done, lines.points.size());
    }
}

// Room for half the widest line besides a little air.
int marginFor(const Options& options) {
    int widest = 0;
    for (const Layer& layer : options.layers) {
        widest = std::max(widest, widthOf(layer));
    }
    return std::min(options.pictureWidth, options.pictureHeight) / 40 + widest / 2 + 1;
}

} // namespace

ExitStatus runDraw(const Options& options) {
    Progress progress;
    std::vector<WktLines> layers(options.layers.size());
    Bounds bounds;
    std::string message;
    for (size_t i = 0; i < layers.size(); ++i) {
        if (!readLines(options.layers[i].file, layers[i], message, progress)) {
            return fail(message, exitBadInput);
        }
        bounds.add(layers[i]);
    }
    const Projection projection =
        !options.plane && couldBeDegrees(bounds) ? Projection::degrees : Projection::plane;
    const Fit fit(bounds, projection, options.pictureWidth, options.pictureHeight, marginFor(options));
    Picture picture;
    if (!picture.create(options.pictureWidth, options.pictureHeight)) {
        return fail(options.picture + ": not enough memory for the picture", exitNoPicture);
    }
    LineStyles styles;
    for (size_t i = 0; i < layers.size(); ++i) {
        drawLayer(picture.dc(), styles, options.layers[i], layers[i], fit, progress);
    }
    progress.show("writing", options.picture, 0, 0);
    CString reason;
    if (!picture.save(options.picture.c_str(), reason)) {
        return fail(std::string(reason), exitNoPicture);
    }
    return exitDone;
}

} // namespace gallery
