// Lets the skin's name and the information fields be typed, and fields be added.
#include "dialogs/frm_info.h"

#include "dialogs/fields_frame.h"
#include "editing/information_rules.h"
#include "widgets/control_names.h"
#include "widgets/field_edit.h"
#include "widgets/prompts.h"
#include "widgets/qt_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace tarvel {

FrmInfo::FrmInfo(SkinDocument& document, Prompts& prompts, QWidget* parent)
    : SkinDialog(QStringLiteral("frmInfo"), QStringLiteral("  :: Skin Info ::"), document, prompts,
                 parent)
    , txtName_(named(new FieldEdit, QStringLiteral("txtName"), tr("Skin Name")))
    , fields_(new FieldsFrame(QStringLiteral("Optional Info"))) {
    auto* lblName = new QLabel(QStringLiteral("Skin Name:"));
    lblName->setBuddy(txtName_);
    auto* nameRow = new QHBoxLayout;
    nameRow->addWidget(lblName);
    nameRow->addWidget(txtName_, 1);
    auto* cmdAdd = named(new QPushButton(QStringLiteral("Add Field")), QStringLiteral("cmdAdd"));
    fields_->addBelowValue(cmdAdd);
    fields_->addBelow(new QLabel(QStringLiteral("*Remove fields by pressing delete")));
    auto* column = new QVBoxLayout(this);
    column->addLayout(nameRow);
    column->addWidget(fields_);
    column->addWidget(makeOk(), 0, Qt::AlignRight);
    resize(460, 310);

    connect(cmdAdd, &QPushButton::clicked, this, &FrmInfo::cmdAdd_Click);
    connect(txtName_, &QLineEdit::textChanged, this, [this](const QString& text) {
        this->document().editSettings(
            [&](SkinSettings& settings) { settings.skinName = coreText(text); });
    });
    connect(fields_, &FieldsFrame::fieldClicked, this, [this](int field) {
        fields_->setValue(qtText(fieldValue(this->document().settings(), field)));
    });
    connect(fields_, &FieldsFrame::valueChanged, this, [this](int field, const QString& text) {
        this->document().editSettings(
            [&](SkinSettings& settings) { setFieldValue(settings, field, coreText(text)); });
    });
}

void FrmInfo::readDocument() {
    {
        const QSignalBlocker quiet(txtName_);
        txtName_->setText(qtText(document().settings().skinName));
    }
    listFields();
    txtName_->setFocus();
    txtName_->sel();
}

void FrmInfo::listFields() {
    QStringList names;
    for (const auto& field : document().settings().information) {
        names << qtText(field.name);
    }
    fields_->setFields(names);
}

void FrmInfo::cmdAdd_Click() {
    const std::string answer = coreText(prompts().input(this, qtText(fieldPrompt)));
    if (fieldName(answer).empty()) {
        return;
    }
    document().editSettings([&](SkinSettings& settings) { addField(settings, answer); });
    listFields();
    fields_->selectField(static_cast<int>(document().settings().information.size()) - 1);
}

} // namespace tarvel
