// Text between the core (UTF-8) and Qt.
#pragma once

#include "files/path_text.h"
#include "text/value_encodings.h"

#include <QByteArray>
#include <QColor>
#include <QString>
#include <QTextDocument>

#include <filesystem>
#include <string>
#include <string_view>

namespace tarvel {

[[nodiscard]] inline QString qtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string coreText(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

[[nodiscard]] inline std::filesystem::path hostPathOf(const QString& path) {
    return pathOf(coreText(path));
}

/// As the user sees it.
[[nodiscard]] inline QString qtPath(const std::filesystem::path& path) {
    return qtText(utf8Of(path));
}

/// A tool tip that shows the text as it stands, also where it looks like markup.
[[nodiscard]] inline QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text)
               ? QLatin1String("<span>") + text.toHtmlEscaped() + QLatin1String("</span>")
               : text;
}

[[nodiscard]] inline QColor qtColor(ColorNumber color) {
    return {static_cast<int>(redOf(color)), static_cast<int>(greenOf(color)),
            static_cast<int>(blueOf(color))};
}

[[nodiscard]] inline ColorNumber colorNumber(const QColor& color) {
    return makeColor(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
                     static_cast<unsigned>(color.blue()));
}

} // namespace tarvel
