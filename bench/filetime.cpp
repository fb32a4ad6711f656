// What writing a pattern of 7680 x 4320 pixels to a PNG file takes, from the command line on, as a
// multiple of what turning the finished picture into the file's bytes takes.

#include "drawcontainer.h"
#include "drawerbase.h"
#include "drawnpattern.h"
#include "options.h"
#include "picturefile.h"

#include <QApplication>
#include <QBuffer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <utility>

namespace {

constexpr QSize size(7680, 4320);
constexpr int rounds = 5;

constexpr const char *commands[] = {
    "purity",
    "gradient",
    "grid --lines horizontal,vertical,slant-left,slant-right --spacing 3",
    "layout",
    "layout --modules 16x16 --per-board 1x1",
};

double milliseconds(const std::function<void()> &work)
{
    const std::clock_t start = std::clock();
    work();
    return 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
}

QImage pictureOf(const QString &command)
{
    Options options(
        QStringLiteral("TarnTestPattern -o file.png %1").arg(command).split(QLatin1Char(' ')));
    DrawContainer window;
    const DrawnPattern pattern(options, window);
    window.resize(size);
    return PictureFile::take(window);
}

// The least of some rounds, since a busy machine only ever adds to them.
void measure(const char *command)
{
    double painting = 0;
    double encoding = 0;
    for (int round = 0; round < rounds; ++round) {
        QImage picture;
        const double painted = milliseconds([&] { picture = pictureOf(QLatin1String(command)); });
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        const double encoded =
            milliseconds([&] { PictureFile::encode(std::move(picture), file, "png"); });
        painting = round == 0 ? painted : std::min(painting, painted);
        encoding = round == 0 ? encoded : std::min(encoding, encoded);
    }
    std::printf("7680x4320, %s: painting %.0f ms, PNG %.0f ms, both %.2f times the PNG\n", command,
                painting, encoding, (painting + encoding) / encoding);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    for (const char *command : commands)
        measure(command);
    return 0;
}
