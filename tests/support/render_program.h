// tarvel-skin render as a program, since it makes an application object of its own, and what it
// drew.
#pragma once

#include "support/temporary_folder.h"

#include <QImage>
#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace tarvel {

struct Rendered {
    int code = -1;
    std::string err;
};

/// With what follows the word "render".
inline Rendered render(const std::vector<std::string>& arguments) {
    QStringList all{QStringLiteral("render")};
    for (const std::string& argument : arguments) {
        all << QString::fromStdString(argument);
    }
    QProcess program;
    program.start(QStringLiteral(TARVEL_SKIN_PROGRAM), all);
    if (!program.waitForFinished(60'000) || program.exitStatus() != QProcess::NormalExit) {
        ADD_FAILURE() << program.errorString().toStdString();
        return {};
    }
    EXPECT_EQ(program.readAllStandardOutput().toStdString(), "");
    return {program.exitCode(), program.readAllStandardError().toStdString()};
}

inline Rendered render(const std::filesystem::path& skin, const std::string& screen,
                       const std::filesystem::path& out,
                       const std::vector<std::string>& options = {}) {
    std::vector<std::string> arguments{skin.string(), screen, out.string()};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return render(arguments);
}

inline QImage imageOf(const std::filesystem::path& png) {
    return QImage(QString::fromStdString(png.string()), "PNG")
        .convertToFormat(QImage::Format_RGB32);
}

inline QImage renderedImage(const std::filesystem::path& skin, const std::string& screen,
                            const std::vector<std::string>& options = {}) {
    const TemporaryFolder folder;
    const Rendered result = render(skin, screen, folder / "out.png", options);
    EXPECT_EQ(result.code, 0) << screen;
    EXPECT_EQ(result.err, "") << screen;
    return imageOf(folder / "out.png");
}

inline std::filesystem::path skinOf(const TemporaryFolder& folder, const std::string& body) {
    folder.file("skin/QOR_Skin.xml", "<Skin name='Nova'>" + body + "</Skin>");
    return folder / "skin";
}

inline void expectFailure(const Rendered& result, int code, const std::string& line) {
    EXPECT_EQ(result.code, code);
    EXPECT_EQ(result.err, "tarvel-skin: " + line + '\n');
}

} // namespace tarvel
