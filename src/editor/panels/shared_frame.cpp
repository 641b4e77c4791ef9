// Builds the rows of the two colours and the opacity, and shows those that a kind has.
#include "panels/shared_frame.h"

#include "document/element_kinds.h"
#include "document/kinds/panel_texts.h"
#include "widgets/click_label.h"
#include "widgets/color_well.h"
#include "widgets/control_names.h"
#include "widgets/field_edit.h"
#include "widgets/qt_text.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvel {

namespace {

constexpr int roomAcross = 12; // pixels beside the text of a button, beyond the style's

QLabel* captionLabel(const char* name, std::string_view text) {
    auto* label = new QLabel(qtText(text));
    label->setObjectName(QLatin1String(name));
    return label;
}

// A caption as it is read out: "Line Color" as "Line color".
QString spoken(std::string_view text) {
    const QString all = qtText(text);
    return all.left(1) + all.mid(1).toLower();
}

// What is read out is its text.
ClickLabel* valueLabel(const char* name) {
    auto* label = new ClickLabel;
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

SharedFrame::SharedFrame(PanelValues& values, Prompts& prompts, QWidget* parent)
    : QGroupBox(qtText(caption::shared), parent)
    , values_(values)
    , prompts_(prompts)
    , border_(borderRow())
    , fill_(fillRow()) {
    named(this, QStringLiteral("fraShared"), tr("Shared: colors and opacity"));
    auto* column = new QVBoxLayout(this);
    addRow(*column, border_);
    fraBox_ = new QWidget;
    fraBox_->setObjectName(QStringLiteral("fraBox"));
    auto* lower = new QVBoxLayout(fraBox_);
    lower->setContentsMargins(0, 0, 0, 0);
    addRow(*lower, fill_);
    lower->addLayout(alphaRow());
    column->addWidget(fraBox_);
    alignRows();
    connect(border_.well, &ColorWell::clicked, this, [this] { ask(values_.border); });
    connect(border_.value, &ClickLabel::clicked, this, [this] { ask(values_.border); });
    connect(border_.clear, &QPushButton::clicked, this, [this] {
        clearBorder(values_);
        refresh();
        emit changed();
    });
    connect(fill_.well, &ColorWell::clicked, this, [this] { ask(values_.fill); });
    connect(fill_.value, &ClickLabel::clicked, this, [this] { ask(values_.fill); });
    connect(fill_.clear, &QPushButton::clicked, this, [this] {
        clearFill(values_);
        refresh();
        emit changed();
    });
    refresh();
}

SharedFrame::Row SharedFrame::borderRow() {
    return {.caption = captionLabel("lblBorderColor", caption::anyBorderColor),
            .well = named(new ColorWell, QStringLiteral("lColor"), tr("Border color")),
            .value = valueLabel("lblL"),
            .clear =
                named(new QPushButton(qtText(caption::clearBorder)), QStringLiteral("cmdClearL"))};
}

SharedFrame::Row SharedFrame::fillRow() {
    return {.caption = captionLabel("lblFillColor", caption::anyFillColor),
            .well = named(new ColorWell, QStringLiteral("fColor"), tr("Fill color")),
            .value = valueLabel("lblF"),
            .clear =
                named(new QPushButton(qtText(caption::clearFill)), QStringLiteral("cmdClearF"))};
}

void SharedFrame::addRow(QBoxLayout& column, Row& row) {
    auto* line = new QHBoxLayout;
    line->addWidget(row.caption);
    line->addWidget(row.well);
    line->addWidget(row.value);
    line->addStretch();
    line->addWidget(row.clear);
    column.addLayout(line);
}

QBoxLayout* SharedFrame::alphaRow() {
    auto* line = new QHBoxLayout;
    lblAlpha_ = captionLabel("lblAlpha", caption::opacity);
    txtAlpha_ = named(new FieldEdit, QStringLiteral("txtAlpha"), tr("Opacity %"));
    lblAlpha_->setBuddy(txtAlpha_);
    txtAlpha_->setFixedWidth(QFontMetrics(font()).horizontalAdvance(QStringLiteral("000000000")));
    connect(txtAlpha_, &QLineEdit::textEdited, this, [this](const QString& text) {
        values_.opacity = coreText(text);
        emit changed();
    });
    line->addWidget(lblAlpha_);
    line->addWidget(txtAlpha_);
    line->addStretch();
    return line;
}

// One column of captions, one of values and one of buttons, over both rows and the opacity.
void SharedFrame::alignRows() {
    const QFontMetrics metrics(font());
    int captionWidth = 0;
    const auto makeRoom = [&](std::string_view text) {
        captionWidth = std::max(captionWidth, metrics.horizontalAdvance(qtText(text)));
    };
    makeRoom(caption::anyBorderColor);
    makeRoom(caption::anyFillColor);
    makeRoom(caption::opacity);
    for (const KindRules* rules : elementKinds) {
        PanelValues values;
        const PanelLayout layout = rules->panel(rules->controls.front().kind, values);
        makeRoom(layout.borderCaption);
        makeRoom(layout.fillCaption);
    }
    for (QLabel* each : {border_.caption, fill_.caption, lblAlpha_}) {
        each->setMinimumWidth(captionWidth);
    }
    const int valueWidth = metrics.horizontalAdvance(QStringLiteral("#DDDDDD"));
    const int clearWidth =
        roomAcross + std::max(border_.clear->sizeHint().width(), fill_.clear->sizeHint().width());
    for (const Row* row : {&border_, &fill_}) {
        row->value->setMinimumWidth(valueWidth);
        row->clear->setMinimumWidth(clearWidth);
    }
    setMinimumWidth(minimumSizeHint().width()); // whichever rows are shown
}

void SharedFrame::ask(Swatch& swatch) {
    if (const auto color = askColor(prompts_, *this, swatch.color)) {
        chooseColor(swatch, *color);
        refresh();
        emit changed();
    }
}

void SharedFrame::refresh() {
    border_.show(values_.border);
    fill_.show(values_.fill);
    const QString alpha = qtText(values_.opacity);
    if (txtAlpha_->text() != alpha) {
        txtAlpha_->setText(alpha);
    }
}

void SharedFrame::refresh(const PanelLayout& layout) {
    if (layout.borderColor) {
        border_.caption->setText(qtText(layout.borderCaption));
        border_.well->setAccessibleName(spoken(layout.borderCaption));
    }
    if (layout.fillColor) {
        fill_.caption->setText(qtText(layout.fillCaption));
        fill_.well->setAccessibleName(spoken(layout.fillCaption));
    }
    border_.setVisible(layout.borderColor);
    fill_.setVisible(layout.fillColor);
    fill_.clear->setVisible(layout.clearFill);
    lblAlpha_->setVisible(layout.opacity);
    txtAlpha_->setVisible(layout.opacity);
    fraBox_->setVisible(layout.fillPart);
    refresh();
}

void SharedFrame::Row::setVisible(bool visible) const {
    caption->setVisible(visible);
    well->setVisible(visible);
    value->setVisible(visible);
    clear->setVisible(visible);
}

void SharedFrame::setVarious(const VariousParts& various) {
    txtAlpha_->setPlaceholderText(various.opacity ? qtText(variousText) : QString());
}

void SharedFrame::Row::show(const Swatch& swatch) const {
    const bool various = isVarious(swatch);
    well->setSwatch(various ? Swatch() : swatch);
    value->setText(various ? qtText(variousText) : well->valueText());
    value->setToolTip(various ? QObject::tr("The selected elements have various colors")
                              : well->toolTip());
}

} // namespace tarvel
