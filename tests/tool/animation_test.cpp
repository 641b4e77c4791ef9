// Animations decoded again: their frames, their times, and what is left when writing fails.
#include "files/host_files.h"
#include "files/replacement.h"
#include "support/decoded_animation.h"
#include "support/render_program.h"
#include "tool/animation_file.h"
#include "tool/screen_sheet.h"

#include <QImage>
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <numeric>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvel::tool {

namespace {

namespace fs = std::filesystem;

const fs::path examples = TARVEL_EXAMPLES_DIR;

struct Format {
    const char* name;
    std::unique_ptr<AnimationFile> (*make)(const OpenFile& file, QSize size);
    DecodedAnimation (*decoded)(const fs::path& file);
};

constexpr Format webp{"a.webp", webpAnimation, decodedWebp};
constexpr Format gif{"a.gif", gifAnimation, decodedGif};

DecodedAnimation writtenAndRead(const Format& format, const std::vector<QImage>& frames,
                                double perSecond) {
    const TemporaryFolder folder;
    const OpenFile file(folder / format.name, Opening::makeNew);
    const auto animation = format.make(file, frames.front().size());
    for (std::size_t i = 0; i < frames.size(); ++i) {
        animation->add(frames[i], static_cast<double>(i + 1) / perSecond);
    }
    animation->finish();
    return format.decoded(folder / format.name);
}

QImage plain(QSize size, QRgb color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

// Of more colours than a GIF has.
QImage rich(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgb(x * 2 % 256, y * 3 % 256, (x + y) % 256));
        }
    }
    return image;
}

QImage noise(QSize size, unsigned seed) {
    std::mt19937 random(seed);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, (static_cast<QRgb>(random()) & 0xF0F0F0U) | 0xFF000000U);
        }
    }
    return image;
}

// A square that travels over odd and even places, stays, goes and leaves nothing behind.
std::vector<QImage> travelling(const QImage& ground) {
    std::vector<QImage> frames;
    for (const QPoint place : {QPoint(0, 0), QPoint(7, 3), QPoint(7, 3), QPoint(30, 20),
                               QPoint(ground.width() - 5, ground.height() - 5)}) {
        QImage frame = ground;
        for (int y = 0; y < 5; ++y) {
            for (int x = 0; x < 5; ++x) {
                frame.setPixel(place + QPoint(x, y), qRgb(255, 200, 0));
            }
        }
        frames.push_back(frame);
    }
    frames.push_back(ground);
    return frames;
}

double meanDistance(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            sum += std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
                   std::abs(qBlue(one) - qBlue(other));
        }
    }
    return sum / 3 / a.width() / a.height();
}

} // namespace

TEST(Animation, ChangedAreaIsTheSmallest) {
    const QImage before = plain({50, 40}, qRgb(1, 2, 3));
    EXPECT_TRUE(changedArea(before, before).isEmpty());
    QImage now = before;
    now.setPixel(7, 9, qRgb(1, 2, 4));
    EXPECT_EQ(changedArea(before, now), QRect(7, 9, 1, 1));
    now.setPixel(0, 39, qRgb(0, 2, 3));
    now.setPixel(49, 20, qRgb(0, 2, 3));
    EXPECT_EQ(changedArea(before, now), QRect(0, 9, 50, 31));
}

TEST(Animation, EveryFrameComesBack) {
    const QImage ground = plain({61, 47}, qRgb(20, 30, 40));
    for (const Format& format : {webp, gif}) {
        const auto frames = travelling(ground);
        const DecodedAnimation read = writtenAndRead(format, frames, 20);
        EXPECT_EQ(read.frames, frames) << format.name; // few colours: a GIF keeps them, too
        EXPECT_EQ(read.milliseconds, std::vector<int>(frames.size(), 50)) << format.name;
        EXPECT_TRUE(read.isEndless) << format.name;
    }
}

TEST(Animation, WebpKeepsEveryColourAndGifComesNear) {
    const auto frames = travelling(rich({123, 77}));
    EXPECT_EQ(writtenAndRead(webp, frames, 10).frames, frames);
    const DecodedAnimation near = writtenAndRead(gif, frames, 10);
    ASSERT_EQ(near.frames.size(), frames.size());
    for (std::size_t i = 0; i < frames.size(); ++i) {
        EXPECT_LT(meanDistance(near.frames[i], frames[i]), 8) << i;
        EXPECT_NE(near.frames[i], frames[i]) << i;
    }
    // What a frame brings in has colours of its own.
    EXPECT_EQ(near.frames[1].pixel(8, 4), qRgb(255, 200, 0));
}

TEST(Animation, AGifKeepsSmallBrightThingsOnALargeDarkGround) {
    QImage frame(400, 300, QImage::Format_RGB32);
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            frame.setPixel(x, y, qRgb(x / 10, y / 8, (x + y) / 9)); // thousands of dark colours
        }
    }
    const std::vector<QRgb> bright{qRgb(255, 0, 0), qRgb(255, 255, 255), qRgb(255, 200, 0),
                                   qRgb(0, 255, 100), qRgb(160, 160, 160)};
    for (std::size_t i = 0; i < bright.size(); ++i) {
        for (int x = 0; x < 6; ++x) {
            frame.setPixel(20 * static_cast<int>(i) + x, 100, bright[i]);
        }
    }
    const auto read = writtenAndRead(gif, {frame}, 1).frames;
    ASSERT_EQ(read.size(), 1U);
    for (std::size_t i = 0; i < bright.size(); ++i) {
        const QRect place(20 * static_cast<int>(i), 100, 6, 1);
        EXPECT_LT(meanDistance(read[0].copy(place), frame.copy(place)), 8) << i;
    }
    EXPECT_LT(meanDistance(read[0], frame), 4);
}

TEST(Animation, AFrameThatIsOnlyOnePixel) {
    for (const Format& format : {webp, gif}) {
        const std::vector<QImage> frames{plain({1, 1}, qRgb(9, 8, 7)), plain({1, 1}, qRgb(9, 8, 7)),
                                         plain({1, 1}, qRgb(7, 8, 9))};
        EXPECT_EQ(writtenAndRead(format, frames, 1).frames, frames) << format.name;
    }
}

TEST(Animation, RoundedTimesDoNotAddUp) {
    const std::vector<QImage> frames(30, plain({4, 4}, qRgb(0, 0, 0)));
    const auto times = writtenAndRead(webp, frames, 30).milliseconds;
    EXPECT_EQ(std::accumulate(times.begin(), times.end(), 0), 1000);
    EXPECT_EQ((std::vector<int>(times.begin(), times.begin() + 3)), (std::vector<int>{33, 34, 33}));
    const auto coarse = writtenAndRead(gif, frames, 30).milliseconds;
    EXPECT_EQ(std::accumulate(coarse.begin(), coarse.end(), 0), 1000);
    EXPECT_EQ((std::vector<int>(coarse.begin(), coarse.begin() + 3)),
              (std::vector<int>{30, 40, 30}));
    EXPECT_EQ(writtenAndRead(gif, frames, 50).milliseconds, std::vector<int>(30, 20));
}

TEST(Animation, MoreFramesTakeNoMoreMemory) {
#ifdef TARVEL_SANITIZED
    GTEST_SKIP() << "the sanitizer keeps what was freed";
#endif
    const auto peak = [] {
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss; // KB
    };
    const std::array<QImage, 2> pictures = {noise({320, 240}, 1), noise({320, 240}, 2)};
    for (const Format& format : {webp, gif}) {
        const TemporaryFolder folder;
        const OpenFile file(folder / format.name, Opening::makeNew);
        const auto animation = format.make(file, pictures[0].size());
        long early = 0;
        for (std::size_t i = 0; i < 60; ++i) {
            animation->add(pictures.at(i % 2), static_cast<double>(i + 1));
            early = i == 10 ? peak() : early;
        }
        animation->finish();
        const auto written = static_cast<long>(fs::file_size(folder / format.name) / 1024);
        ASSERT_GT(written, 3000) << format.name; // enough to be noticed
        EXPECT_LT(peak() - early, written / 3) << format.name;
    }
}

TEST(Animation, AFailingWriteNamesTheFile) {
    for (const Format& format : {webp, gif}) {
        const TemporaryFolder folder;
        const OpenFile file("/dev/full", Opening::write, folder / "target");
        try {
            const auto animation = format.make(file, {640, 480});
            animation->add(rich({640, 480}), 1);
            animation->finish();
            ADD_FAILURE() << format.name;
        } catch (const FileError& error) {
            EXPECT_EQ(error.what(), "No space left on device: " + (folder / "target").string());
        }
    }
}

TEST(RenderAnimation, FramesAreTheStills) {
    const TemporaryFolder folder;
    const std::vector<std::string> span{"--from", "1.4", "--to",     "2.0",
                                        "--fps",  "5",   "--select", "6"};
    for (const Format& format : {webp, gif}) {
        const fs::path out = folder / format.name;
        const Rendered result = render(examples / "aurora", "Menu", out, span);
        EXPECT_EQ(result.code, 0) << result.err;
        EXPECT_EQ(result.err, "");
        const DecodedAnimation read = format.decoded(out);
        ASSERT_EQ(read.frames.size(), 3U) << format.name;
        EXPECT_EQ(read.milliseconds, std::vector<int>(3, 200)) << format.name;
        EXPECT_TRUE(read.isEndless) << format.name;
        const char* const times[] = {"1.4", "1.6", "1.8"};
        for (std::size_t i = 0; i < 3; ++i) {
            const QImage still =
                renderedImage(examples / "aurora", "Menu", {"--at", times[i], "--select", "6"});
            if (format.decoded == webp.decoded) {
                EXPECT_EQ(read.frames[i], still) << times[i];
            } else {
                EXPECT_LT(meanDistance(read.frames[i], still), 3) << times[i];
            }
        }
        EXPECT_NE(read.frames[0], read.frames[1]) << format.name;
    }
}

TEST(RenderAnimation, OfASheet) {
    const TemporaryFolder folder;
    const auto out = folder / "all.webp";
    const Rendered result = render(std::vector<std::string>{
        (examples / "aurora").string(), "--all", out.string(), "--to", "0.2", "--fps", "10"});
    EXPECT_EQ(result.code, 0) << result.err;
    const DecodedAnimation read = decodedWebp(out);
    ASSERT_EQ(read.frames.size(), 2U);
    EXPECT_EQ(read.frames[1].size(), sheetSize);
    EXPECT_EQ(read.frames[1].copy(placeOnSheet(1)),
              renderedImage(examples / "aurora", "Menu", {"--at", "0.1"}));
}

TEST(RenderAnimation, ReplacesTheOlderFileOnlyWhenItIsWhole) {
    const TemporaryFolder folder;
    const fs::path older = folder.file("kept/out.gif", "older");
    fs::create_symlink(older, folder / "link.gif");
    const Rendered result =
        render(examples / "aurora", "Title", folder / "link.gif", {"--to", "0.1"});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_TRUE(fs::is_symlink(folder / "link.gif"));
    EXPECT_EQ(decodedGif(older).frames.size(), 2U);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "kept"), fs::directory_iterator{}), 1);
}

TEST(RenderAnimation, TakesAwayWhatOneThatWasBrokenOffHasLeft) {
    const TemporaryFolder folder;
    folder.file(".tarvel-123-1", "half");
    EXPECT_EQ(render(examples / "aurora", "Title", folder / "a.webp", {"--to", "0.1"}).code, 0);
    EXPECT_FALSE(fs::exists(folder / ".tarvel-123-1"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator{}), 1);
}

TEST(RenderAnimation, ToWhereNothingCanBeWritten) {
    const TemporaryFolder folder;
    for (const Format& format : {webp, gif}) {
        const fs::path inMissing = folder / "no" / format.name;
        expectFailure(render(examples / "aurora", "Load", inMissing), 1,
                      "No such file or directory: " + inMissing.string());
        EXPECT_FALSE(fs::exists(folder / "no"));
        const fs::path inPlace = folder.folder(format.name);
        expectFailure(render(examples / "aurora", "Load", inPlace), 1,
                      "Is a directory: " + inPlace.string());
        EXPECT_TRUE(fs::is_empty(inPlace));
    }
    if (::geteuid() == 0) {
        GTEST_SKIP() << "everything can be written to";
    }
    const fs::path kept = folder.file("out/a.gif", "kept");
    fs::permissions(folder / "out", fs::perms::owner_read | fs::perms::owner_exec);
    const Rendered result = render(examples / "aurora", "Load", kept);
    fs::permissions(folder / "out", fs::perms::owner_all);
    expectFailure(result, 1, "Permission denied: " + kept.string());
    EXPECT_EQ(readFile(kept), "kept");
}

TEST(RenderAnimation, ADiskThatIsFullLeavesTheOlderFile) {
    const TemporaryFolder folder;
    const fs::path kept = folder.file("a.gif", "kept");
    // Files of the program may have no more than this.
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit low = before;
    low.rlim_cur = 20'000;
    auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &low), 0);
    const Rendered result = render(examples / "aurora", "Title", kept, {"--to", "1"});
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    expectFailure(result, 1, "File too large: " + kept.string());
    EXPECT_EQ(readFile(kept), "kept");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator{}), 1);
}

} // namespace tarvel::tool
