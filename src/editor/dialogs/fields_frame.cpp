// Shows the value of the chosen field in the box, and tells what is typed into it.
#include "dialogs/fields_frame.h"

#include "widgets/control_names.h"
#include "widgets/empty_hint.h"
#include "widgets/field_edit.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>

namespace tarvel {

namespace {

enum Row { labelRow, valueRow, belowValueRow, restRow, belowRow };
enum Column { listColumn, valueColumn };

} // namespace

FieldsFrame::FieldsFrame(const QString& caption, QWidget* parent)
    : QGroupBox(caption, parent)
    , lstFields_(named(new QListWidget, QStringLiteral("lstFields"), tr("Field (select one)")))
    , txtData_(named(new FieldEdit, QStringLiteral("txtData"), tr("Value of the selected field")))
    , grid_(new QGridLayout(this))
    , valueLine_(new QHBoxLayout) {
    grid_->setHorizontalSpacing(12);
    grid_->setColumnStretch(listColumn, 1);
    grid_->setColumnStretch(valueColumn, 1);
    grid_->setRowStretch(restRow, 1);
    auto* lblField = new QLabel(QStringLiteral("Field (select one)"));
    lblField->setBuddy(lstFields_);
    auto* lblValue = new QLabel(QStringLiteral("Value"));
    lblValue->setBuddy(txtData_);
    grid_->addWidget(lblField, labelRow, listColumn);
    grid_->addWidget(lblValue, labelRow, valueColumn);
    grid_->addWidget(lstFields_, valueRow, listColumn, restRow - valueRow + 1, 1);
    valueLine_->setSpacing(8);
    valueLine_->addWidget(txtData_);
    grid_->addLayout(valueLine_, valueRow, valueColumn);
    lstFields_->setMinimumSize(170, 110);
    txtData_->setMinimumWidth(170);
    new EmptyHint(*lstFields_, tr("No fields.\nThe button \"Add Field\" makes one.")); // NOLINT

    connect(lstFields_, &QListWidget::itemSelectionChanged, this, &FieldsFrame::lstFields_Click);
    connect(lstFields_, &QListWidget::itemClicked, this, &FieldsFrame::lstFields_Click);
    connect(txtData_, &QLineEdit::textChanged, this, &FieldsFrame::txtData_Change);
}

void FieldsFrame::setFields(const QStringList& names) {
    {
        const QSignalBlocker quiet(lstFields_);
        lstFields_->clear();
        lstFields_->addItems(names);
        // Otherwise the focus alone would make the first field the current one.
        lstFields_->setCurrentIndex({});
    }
    showNoValue();
}

void FieldsFrame::focusFields() {
    lstFields_->setFocus();
}

void FieldsFrame::selectField(int field) {
    lstFields_->setCurrentRow(field);
}

int FieldsFrame::selectedField() const {
    const auto selected = lstFields_->selectedItems();
    return selected.isEmpty() ? -1 : lstFields_->row(selected.front());
}

void FieldsFrame::setValue(const QString& text) {
    const QSignalBlocker quiet(txtData_);
    txtData_->setText(text);
}

// What could be typed would belong to no field.
void FieldsFrame::showNoValue() {
    setValue({});
    txtData_->setEnabled(false);
}

void FieldsFrame::addBesideValue(QWidget* widget) {
    valueLine_->addWidget(widget);
}

void FieldsFrame::addBelowValue(QWidget* widget) {
    grid_->addWidget(widget, belowValueRow, valueColumn, Qt::AlignLeft);
}

void FieldsFrame::addBelow(QWidget* widget) {
    grid_->addWidget(widget, belowRow, listColumn, 1, 2);
}

void FieldsFrame::lstFields_Click() {
    const int field = selectedField();
    if (field < 0) {
        showNoValue();
        return;
    }
    txtData_->setEnabled(true);
    emit fieldClicked(field);
    txtData_->setFocus();
    txtData_->sel();
}

void FieldsFrame::txtData_Change() {
    const int field = selectedField();
    if (field >= 0) {
        emit valueChanged(field, txtData_->text());
    }
}

} // namespace tarvel
