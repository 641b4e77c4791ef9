// Shows the place of the selected element in four fields, and moves it by what is typed.
#include "panels/position_panel.h"

#include "document/element_kinds.h"
#include "widgets/control_names.h"
#include "widgets/field_edit.h"
#include "widgets/qt_text.h"
#include "widgets/wrap_layout.h"

#include <QKeyEvent>
#include <QLabel>

#include <algorithm>

namespace tarvel {

namespace {

// What is read out of a field, which begins as its caption does, and what is told beside it.
struct Words {
    const char* name;
    const char* tip;
};
using FieldWords = std::array<Words, positionFields>;

const FieldWords& wordsFor(ControlKind kind) {
    static constexpr FieldWords rectangle = {{{"Left edge", "From the left of the screen"},
                                              {"Top edge", "From the top of the screen"},
                                              {"Width", "From the left to the right edge"},
                                              {"Height", "From the top to the bottom edge"}}};
    static constexpr FieldWords line = {{{"X1", "First end across"},
                                         {"Y1", "First end down"},
                                         {"X2", "Second end across"},
                                         {"Y2", "Second end down"}}};
    return rulesOf(kind).placeForm == PlaceForm::ends ? line : rectangle;
}

// As wide as a place at its longest: four digits, a sign and a part after the point.
class PlaceEdit : public FieldEdit {
  public:
    [[nodiscard]] QSize sizeHint() const override {
        constexpr int frames = 12; // pixels beside the text
        const int width = fontMetrics().horizontalAdvance(QStringLiteral("-0000.00")) + frames;
        return {width, FieldEdit::sizeHint().height()};
    }
};

} // namespace

PositionPanel::PositionPanel(QWidget* parent)
    : QGroupBox(QStringLiteral("POSITION"), parent) {
    static constexpr std::array<const char*, positionFields> names = {"txtL", "txtT", "txtW",
                                                                      "txtH"};
    named(this, QStringLiteral("fraPos"), tr("Position in skin pixels"));
    auto* row = new WrapLayout(WrapLayout::Fill::evenly, this);
    for (std::size_t i = 0; i < names.size(); ++i) {
        auto* edit = new PlaceEdit;
        edit->setObjectName(QLatin1String(names[i]));
        edit->installEventFilter(this);
        connect(edit, &QLineEdit::editingFinished, this, [this, i] { leave(i); });
        auto* label = new QLabel;
        label->setBuddy(edit);
        // Room for the captions of a line: they are wider.
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("X2")));
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        row->addTogether({label, edit});
        fields_[i] = edit;
        captions_[i] = label;
    }
    clear();
}

void PositionPanel::show(const ElementControl& control) {
    shown_ = positionTexts(control);
    const auto& captions = positionCaptions(control.kind);
    const FieldWords& words = wordsFor(control.kind);
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        // What was typed and taken over is the document's to undo, not the field's.
        if (fields_[i]->text() != qtText(shown_[i]) || fields_[i]->isUndoAvailable()) {
            fields_[i]->setText(qtText(shown_[i]));
        }
        fields_[i]->setModified(false);
        fields_[i]->setEnabled(true);
        captions_[i]->setText(qtText(captions[i]));
        fields_[i]->setAccessibleName(QLatin1String(words[i].name));
        fields_[i]->setToolTip(QLatin1String(words[i].tip));
    }
}

void PositionPanel::setPos(const ElementControl& control) {
    show(control);
}

void PositionPanel::setPosLine(const ElementControl& control) {
    show(control);
}

void PositionPanel::setEditable(bool editable) {
    for (FieldEdit* field : fields_) {
        field->setEnabled(editable);
    }
}

void PositionPanel::clear() {
    show({});
    for (FieldEdit* field : fields_) {
        field->clear();
        field->setEnabled(false);
    }
}

PositionTexts PositionPanel::texts() const {
    PositionTexts result;
    for (std::size_t i = 0; i < result.size(); ++i) {
        result[i] = coreText(fields_[i]->text());
    }
    return result;
}

// Escape takes back what was typed.
bool PositionPanel::eventFilter(QObject* watched, QEvent* event) {
    const auto at = std::find(fields_.begin(), fields_.end(), watched);
    if (at != fields_.end() && event->type() == QEvent::KeyPress && (*at)->isModified() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        (*at)->setText(qtText(shown_[static_cast<std::size_t>(at - fields_.begin())]));
        (*at)->sel();
        return true;
    }
    return QGroupBox::eventFilter(watched, event);
}

void PositionPanel::leave(std::size_t field) {
    if (fields_[field]->isModified()) {
        fields_[field]->setModified(false);
        emit entered(static_cast<PositionField>(field), fields_[field]->text());
    }
}

} // namespace tarvel
