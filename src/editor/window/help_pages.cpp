// Builds the pages of keys and of the program itself.
#include "window/help_pages.h"

#include "skinfile/version.h"
#include "text/xml_parse.h"
#include "widgets/control_names.h"
#include "widgets/qt_text.h"
#include "window/key_table.h"
#include "window/window_place.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace tarvel {

namespace {

QPushButton* makeOk(QDialog& dialog) {
    auto* button = named(new QPushButton(QObject::tr("OK")), QStringLiteral("cmdOK"),
                         QObject::tr("OK: close"));
    button->setDefault(true);
    QObject::connect(button, &QPushButton::clicked, &dialog, &QDialog::accept);
    return button;
}

QString aboutText() {
    return QStringLiteral("Tarvel %1.%2\n"
                          "An editor for skins of the QOR dashboard\n\n"
                          "Copyright 2026 The Tarvel developers\n"
                          "Free software under the MIT license, without any warranty\n\n"
                          "Made with\n"
                          "Qt %3, under the GNU LGPL version 3\n"
                          "pugixml %4, under the MIT license")
        .arg(versionMajor)
        .arg(versionMinor)
        .arg(QLatin1String(qVersion()), qtText(xmlLibraryVersion()));
}

} // namespace

FrmKeys::FrmKeys(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmKeys"));
    setWindowTitle(tr("Keys"));
    auto* page = named(new QTextBrowser, QStringLiteral("txtKeys"), tr("All keys"));
    page->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    page->setCursorWidth(0); // nothing can be typed
    page->setHtml(keyPage());
    auto* column = new QVBoxLayout(this);
    column->addWidget(page, 1);
    column->addWidget(makeOk(*this), 0, Qt::AlignRight);
    placeWithin(*this, {620, 640});
}

FrmAbout::FrmAbout(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About Tarvel"));
    constexpr int iconSize = 64; // pixels at 100 %
    auto* picture = new QLabel;
    picture->setPixmap(QIcon(QStringLiteral(":/tarvel/tarvel.png"))
                           .pixmap(QSize(iconSize, iconSize), devicePixelRatioF()));
    auto* text = new QLabel(aboutText());
    text->setObjectName(QStringLiteral("lblAbout"));
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* row = new QHBoxLayout;
    row->setSpacing(18);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addWidget(text, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 18, 20, 16);
    column->setSpacing(14);
    column->addLayout(row);
    auto* ok = makeOk(*this);
    column->addWidget(ok, 0, Qt::AlignRight);
    column->setSizeConstraint(QLayout::SetFixedSize);
    ok->setFocus();
}

} // namespace tarvel
