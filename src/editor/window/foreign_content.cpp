// Draws the elements in a document of their own, by the rules of drawing, and copies them from it.
#include "window/foreign_content.h"

#include "editing/manipulation.h"
#include "editing/new_element.h"
#include "files/host_files.h"
#include "surface/element_looks.h"
#include "widgets/qt_text.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QStandardPaths>

namespace tarvel {

namespace {

constexpr auto pictureName = "Picture";

ClipboardContent drawn(SkinDocument& document, ElementKind kind, const PanelValues& values,
                       PictureCache& pictures) {
    const auto natural = lookOf(kind).naturalSize(values, document.settings(), pictures);
    const Place place = middlePlace(kind, natural);
    const int id = makeNewElement(document, kind, values, {place[0], place[1]});
    placeElement(document, id, place);
    return copyElements(document, {id});
}

QString withoutControls(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    text.replace(u'\t', u' ');
    text.removeIf(
        [](QChar letter) { return letter != u'\n' && letter.category() == QChar::Other_Control; });
    return text.trimmed();
}

QByteArray pngOf(const QImage& picture, const std::filesystem::path& folder) {
    QByteArray png;
    QBuffer buffer(&png);
    if (!picture.save(&buffer, "PNG")) {
        throw FileError("The picture cannot be written as PNG", folder);
    }
    return png;
}

} // namespace

std::optional<ClipboardContent> textContent(const QString& text, const PanelValues& panel,
                                            PictureCache& pictures) {
    if (text.size() > longestPastedText) {
        return std::nullopt;
    }
    PanelValues values = panel;
    values.text = coreText(withoutControls(text));
    values.textIsEntry = false;
    if (values.text.empty()) {
        return std::nullopt;
    }
    if (values.fill.fillStyle == FillStyle::transparent) {
        values.fill = {FillStyle::solid, makeColor(255, 255, 255)};
    }
    SkinDocument document;
    return drawn(document, ElementKind::Text, values, pictures);
}

ClipboardContent pictureContent(const QImage& picture, const std::filesystem::path& folder,
                                PictureCache& pictures) {
    const QByteArray png = pngOf(picture, folder);
    const QByteArray digest = QCryptographicHash::hash(png, QCryptographicHash::Sha256).toHex();
    const auto file = folder / (digest.left(32).toStdString() + ".png");
    if (const std::string problem = fileProblem(file); !problem.empty()) {
        throw FileError(problem, file);
    }
    createFolders(folder);
    writeFile(file, {png.constData(), static_cast<std::size_t>(png.size())});
    SkinDocument document;
    document.addRes(pictureName, documentPath(file));
    PanelValues values;
    values.resource = 0;
    return drawn(document, ElementKind::Image, values, pictures);
}

std::filesystem::path pastedPictures() {
    return hostPathOf(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)) /
           "pasted";
}

} // namespace tarvel
