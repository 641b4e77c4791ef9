// Lets the delays of the three screens be typed.
#include "dialogs/frm_delays.h"

#include "dialogs/fields_frame.h"
#include "editing/delay_rules.h"
#include "widgets/qt_text.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarvel {

FrmDelays::FrmDelays(SkinDocument& document, Prompts& prompts, QWidget* parent)
    : SkinDialog(QStringLiteral("frmDelays"), QStringLiteral("  :: Delays ::"), document, prompts,
                 parent)
    , fields_(new FieldsFrame(QStringLiteral("Delays"))) {
    fields_->addBesideValue(new QLabel(QStringLiteral("milliseconds")));
    auto* column = new QVBoxLayout(this);
    column->addWidget(fields_);
    column->addWidget(makeOk(), 0, Qt::AlignRight);
    resize(460, 250);

    connect(fields_, &FieldsFrame::fieldClicked, this, [this](int field) {
        fields_->setValue(qtText(delayText(this->document().settings(), field)));
    });
    connect(fields_, &FieldsFrame::valueChanged, this, [this](int field, const QString& text) {
        this->document().editSettings(
            [&](SkinSettings& settings) { setDelay(settings, field, coreText(text)); });
    });
}

void FrmDelays::readDocument() {
    QStringList names;
    for (const auto name : delayFields) {
        names << qtText(name);
    }
    fields_->setFields(names);
    fields_->focusFields();
}

} // namespace tarvel
