// Fills a window with the text of the skin, in a font of fixed width.
#include "window/xml_window.h"

#include "widgets/control_names.h"
#include "window/window_place.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace tarvel {

XmlWindow::XmlWindow(const QString& text, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmXml"));
    setWindowTitle(QStringLiteral("QOR_Skin.xml"));
    auto* edit = named(new QPlainTextEdit, QStringLiteral("txtXml"), tr("Text of the skin file"));
    edit->setReadOnly(true);
    edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setStyleHint(QFont::Monospace); // where the system's font is but a name for one
    edit->setFont(fixed);
    constexpr int tabColumns = 4;
    edit->setTabStopDistance(tabColumns * QFontMetricsF(fixed).horizontalAdvance(u' '));
    edit->setPlainText(text);
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(edit);
    placeWithin(*this, {760, 560});
}

} // namespace tarvel
