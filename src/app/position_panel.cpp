// Position fields.
#include "app/position_panel.h"

#include "app/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace tarvel {

PositionPanel::PositionPanel(QWidget* parent)
    : QGroupBox(QStringLiteral("POSITION"), parent) {
    struct Field {
        const char* name;
        const char* caption;
        const char* meaning;
    };
    static constexpr std::array<Field, 4> fields = {{{"txtL", "L", "Left, or first end across"},
                                                     {"txtT", "T", "Top, or first end down"},
                                                     {"txtW", "W", "Width, or second end across"},
                                                     {"txtH", "H", "Height, or second end down"}}};
    setObjectName(QStringLiteral("fraPos"));
    setAccessibleName(tr("Position in skin pixels"));
    auto* row = new QHBoxLayout(this);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        auto* edit = new QLineEdit;
        edit->setObjectName(QLatin1String(fields[i].name));
        edit->setAccessibleName(QLatin1String(fields[i].meaning));
        edit->setToolTip(edit->accessibleName());
        edit->setReadOnly(true);
        auto* label = new QLabel(QLatin1String(fields[i].caption));
        label->setBuddy(edit);
        row->addWidget(label);
        row->addWidget(edit);
        fields_[i] = edit;
    }
    clear();
}

void PositionPanel::show(const std::array<float, 4>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        fields_[i]->setText(qtText(numberText(values[i])));
        fields_[i]->setEnabled(true);
    }
}

void PositionPanel::setPos(const ElementControl& control) {
    show({control.left, control.top, control.width, control.height});
}

void PositionPanel::setPosLine(const ElementControl& control) {
    show({control.X1, control.Y1, control.X2, control.Y2});
}

void PositionPanel::clear() {
    for (QLineEdit* field : fields_) {
        field->clear();
        field->setEnabled(false);
    }
}

} // namespace tarvel
