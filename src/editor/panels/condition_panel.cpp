// Lists the conditions, and stores the chosen one in the element.
#include "panels/condition_panel.h"

#include "document/conditions.h"
#include "editing/step_names.h"
#include "widgets/control_names.h"
#include "widgets/qt_text.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace tarvel {

namespace {

constexpr int listWidth = 340; // pixels
constexpr int rowSpacing = 2;
constexpr int descriptionLines = 3; // of the longest description

} // namespace

ConditionPanel::ConditionPanel(SkinDocument& document, QWidget* parent)
    : BehaviourPanel(document, step::condition, QStringLiteral("fraModifier(2)"),
                     QStringLiteral("CONDITION:"), parent)
    , lstCond_(named(new QListWidget, QStringLiteral("lstCond"), tr("Conditions")))
    , lblConditionDesc_(new QLabel) {
    setAccessibleName(tr("Condition of the element"));
    lblConditionDesc_->setObjectName(QStringLiteral("lblConditionDesc"));
    for (const ConditionRow& row : conditionRows) {
        lstCond_->addItem(qtText(row.text));
    }
    lstCond_->setMinimumWidth(listWidth);
    lstCond_->setSpacing(rowSpacing);
    lstCond_->setFixedHeight((lstCond_->sizeHintForRow(0) + 2 * rowSpacing) * lstCond_->count() +
                             2 * (lstCond_->frameWidth() + rowSpacing));
    lblConditionDesc_->setWordWrap(true);
    lblConditionDesc_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblConditionDesc_->setMinimumHeight(descriptionLines *
                                        lblConditionDesc_->fontMetrics().lineSpacing());
    rows().addWidget(lstCond_);
    rows().addWidget(lblConditionDesc_);
    addOk(QStringLiteral("cmdConditionOK"), tr("store the condition"));
    setFirstControl(lstCond_);
    connect(lstCond_, &QListWidget::currentRowChanged, this, &ConditionPanel::lstCond_Click);
    connect(lstCond_, &QListWidget::itemSelectionChanged, this, &ConditionPanel::keepRowSelected);
    lstCond_->setCurrentRow(0);
}

void ConditionPanel::lstCond_Click(int row) {
    if (row >= 0) {
        lblConditionDesc_->setText(
            qtText(conditionRows.at(static_cast<std::size_t>(row)).description));
    }
}

// Ctrl takes the highlight from the selected row, which would be stored all the same.
void ConditionPanel::keepRowSelected() {
    QListWidgetItem* row = lstCond_->currentItem();
    if (row != nullptr && lstCond_->selectedItems().isEmpty()) {
        row->setSelected(true);
    }
}

void ConditionPanel::fill(const Element& element) {
    lstCond_->setCurrentRow(getcondNum(element.elementCondition));
}

void ConditionPanel::store(Element& element) const {
    const auto row = static_cast<std::size_t>(lstCond_->currentRow()); // -1 is too large
    if (row < conditionRows.size()) {
        element.elementCondition = conditionRows[row].text;
    }
}

} // namespace tarvel
