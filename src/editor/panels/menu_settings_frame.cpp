// Builds the check boxes, numbers, alignments and colours of an item menu.
#include "panels/menu_settings_frame.h"

#include "document/kinds/panel_texts.h"
#include "editing/several_values.h"
#include "widgets/color_well.h"
#include "widgets/control_names.h"
#include "widgets/drop_down.h"
#include "widgets/field_edit.h"
#include "widgets/qt_text.h"
#include "widgets/skin_fonts.h"
#include "widgets/wrap_layout.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvel {

namespace {

constexpr int smallGap = 4; // pixels

Qt::Alignment qtAlignment(TextAlignment alignment) {
    switch (alignment) {
    case TextAlignment::right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case TextAlignment::center:
        return Qt::AlignCenter;
    case TextAlignment::left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

// The ground of a screen, black, unless the text could not be read on it.
QColor groundFor(const QColor& text) {
    constexpr int tooDark = 72;
    return qGray(text.rgb()) < tooDark ? QColor(208, 208, 208) : QColor(Qt::black);
}

QString various() {
    return qtText(variousText);
}

QLabel* headLabel(std::string_view text) {
    auto* label = new QLabel(qtText(text));
    QFont font = skinFont({.bold = true});
    font.setPointSizeF(label->font().pointSizeF()); // as large as the texts around it
    label->setFont(font);
    return label;
}

QLabel* previewLabel(const char* name, std::string_view text) {
    auto* label = new QLabel(qtText(text));
    label->setObjectName(QLatin1String(name));
    QFont font = skinFont({});
    font.setPointSizeF(label->font().pointSizeF()); // as large as the texts around it
    label->setFont(font);
    label->setAutoFillBackground(true);
    label->setContentsMargins(smallGap, 0, smallGap, 0);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return label;
}

} // namespace

struct MenuSettingsFrame::Group {
    struct ColorNames {
        const char* well;
        const char* label;
        std::string_view text;
        QString spoken;
        ColorNumber MenuFrame::*value;
    };

    std::string_view head;
    const char* list;
    QString spoken;
    int MenuFrame::*position;
    void (*choose)(MenuFrame&, int);
    TextAlignment MenuFrame::*preview;
    std::array<ColorNames, 2> colors;
};

MenuSettingsFrame::MenuSettingsFrame(MenuFrame& frame, Prompts& prompts, QWidget* parent)
    : QGroupBox(tr("Item Menu"), parent)
    , values_(frame)
    , prompts_(prompts) {
    named(this, QStringLiteral("fraQor"), tr("Item Menu settings"));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(smallGap);
    addChecks(*column);
    addNumbers(*column);
    addGroup(*column,
             {.head = caption::gameTitle,
              .list = "cmbTitleAlign",
              .spoken = tr("Alignment of the titles"),
              .position = &MenuFrame::titleAlignment,
              .choose = chooseTitleAlign,
              .preview = &MenuFrame::titlePreview,
              .colors = {{{"colSelTitle", "lblSelTitle", caption::selectedTitle,
                           tr("Color of the selected title"), &MenuFrame::selectedTitleColor},
                          {"colUnselTitle", "lblUnselTitle", caption::unselectedTitle,
                           tr("Color of the other titles"), &MenuFrame::unselectedTitleColor}}}});
    addGroup(*column, {.head = caption::gameDescription,
                       .list = "cmbDescAlign",
                       .spoken = tr("Alignment of the descriptions"),
                       .position = &MenuFrame::descriptionAlignment,
                       .choose = chooseDescAlign,
                       .preview = &MenuFrame::descPreview,
                       .colors = {{{"colSelDesc", "lblSelDesc", caption::selectedDescription,
                                    tr("Color of the selected description"),
                                    &MenuFrame::selectedDescriptionColor},
                                   {"colUnselDesc", "lblUnselDesc", caption::unselectedDescription,
                                    tr("Color of the other descriptions"),
                                    &MenuFrame::unselectedDescriptionColor}}}});
    column->addStretch();
    refresh();
}

void MenuSettingsFrame::addChecks(QBoxLayout& column) {
    auto* checks = new WrapLayout(WrapLayout::Fill::evenly);
    checks->setMostPerRow(2);
    checks->setSpacing(smallGap);
    checks->addWidget(
        addCheck("chkThumbVis", caption::thumbnailsVisible, &MenuFrame::thumbnailsVisible));
    checks->addWidget(addCheck("chkSmoothScroll", caption::smoothScroll, &MenuFrame::smoothScroll));
    checks->addWidget(addCheck("chkSelGlow", caption::glowSelected, &MenuFrame::glowSelected));
    checks->addWidget(
        addCheck("chkShowDesc", caption::showDescription, &MenuFrame::showDescription));
    column.addLayout(checks);
}

void MenuSettingsFrame::addNumbers(QBoxLayout& column) {
    auto* numbers = new WrapLayout(WrapLayout::Fill::none);
    const auto addField = [&](const char* labelName, std::string_view text, QLineEdit* edit) {
        auto* label = new QLabel(qtText(text));
        label->setObjectName(QLatin1String(labelName));
        label->setBuddy(edit);
        numbers->addTogether({label, edit});
    };
    addField("lblScrollFactor", caption::scrollFactor,
             addNumber("txtScrollFactor", tr("Scroll factor"), &MenuFrame::scrollFactor));
    addField("lblNumItems", caption::itemsShown,
             addNumber("txtNumItems", qtText(caption::itemsShown), &MenuFrame::itemsShown));
    column.addLayout(numbers);
}

QCheckBox* MenuSettingsFrame::addCheck(const char* name, std::string_view text,
                                       CheckValue MenuFrame::*value) {
    auto* box = new QCheckBox(qtText(text));
    named(box, QLatin1String(name), box->text());
    connect(box, &QCheckBox::clicked, this, [this, box, value](bool on) {
        values_.*value = on;
        showCheck({box, value});
        emit changed();
    });
    checks_.push_back({box, value});
    return box;
}

QLineEdit* MenuSettingsFrame::addNumber(const char* name, const QString& spoken,
                                        std::string MenuFrame::*value) {
    auto* edit = named(new FieldEdit, QLatin1String(name), spoken);
    const QFontMetrics metrics(font());
    edit->setFixedWidth(std::max(metrics.horizontalAdvance(QStringLiteral("000000")),
                                 metrics.horizontalAdvance(various() + QStringLiteral("0"))));
    connect(edit, &QLineEdit::textEdited, this, [this, value](const QString& text) {
        values_.*value = coreText(text);
        emit changed();
    });
    numbers_.push_back({edit, value});
    return edit;
}

void MenuSettingsFrame::addGroup(QBoxLayout& column, const Group& group) {
    column.addSpacing(smallGap);
    auto* top = new QHBoxLayout;
    top->addWidget(headLabel(group.head));
    top->addStretch();
    auto* alignment = new QLabel(qtText(caption::alignment));
    QComboBox* list = addAlignment(group);
    alignment->setBuddy(list);
    top->addWidget(alignment);
    top->addWidget(list);
    column.addLayout(top);

    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(smallGap);
    grid->addWidget(new QLabel(qtText(caption::preview)), 0, 0);
    for (std::size_t which = 0; which < group.colors.size(); ++which) {
        grid->addLayout(colorRow(group, which), static_cast<int>(which), 1);
    }
    grid->setColumnStretch(1, 1);
    column.addLayout(grid);
}

QComboBox* MenuSettingsFrame::addAlignment(const Group& group) {
    auto* list = named(new DropDown, QLatin1String(group.list), group.spoken);
    list->view()->setAccessibleName(group.spoken);
    list->setPlaceholderText(various());
    for (const std::string_view entry : alignmentEntries) {
        list->addItem(qtText(entry));
    }
    connect(list, &QComboBox::activated, this, [this, choose = group.choose](int position) {
        choose(values_, position);
        std::ranges::for_each(colors_, [this](const Color& color) { showColor(color); });
        emit changed();
    });
    alignments_.push_back({list, group.position});
    return list;
}

QLayout* MenuSettingsFrame::colorRow(const Group& group, std::size_t which) {
    const Group::ColorNames& names = group.colors.at(which);
    auto* well = named(new ColorWell, QLatin1String(names.well), names.spoken);
    auto* row = new QHBoxLayout;
    row->addWidget(well);
    const Color color{.well = well,
                      .preview = previewLabel(names.label, names.text),
                      .text = qtText(names.text),
                      .value = names.value,
                      .alignment = group.preview};
    row->addWidget(color.preview, 1);
    connect(well, &ColorWell::clicked, this, [this, color] { ask(color); });
    colors_.push_back(color);
    return row;
}

void MenuSettingsFrame::ask(const Color& color) {
    if (const auto chosen = askColor(prompts_, *this, values_.*color.value)) {
        values_.*color.value = *chosen;
        showColor(color);
        emit changed();
    }
}

void MenuSettingsFrame::showCheck(const Check& check) {
    const CheckValue value = values_.*check.value;
    check.box->setTristate(value.isVarious());
    check.box->setCheckState(value.isVarious() ? Qt::PartiallyChecked
                             : value           ? Qt::Checked
                                               : Qt::Unchecked);
    check.box->setAccessibleDescription(value.isVarious() ? various() : QString());
    // Its own tip comes back when the value is one again.
    constexpr auto ownTip = "ownTip";
    const bool saysVarious = check.box->toolTip() == various();
    if (value.isVarious() && !saysVarious) {
        check.box->setProperty(ownTip, check.box->toolTip());
        check.box->setToolTip(various());
    } else if (!value.isVarious() && saysVarious) {
        check.box->setToolTip(check.box->property(ownTip).toString());
    }
}

void MenuSettingsFrame::showNumber(const Number& number) {
    const QString text = qtText(values_.*number.value);
    if (number.edit->text() != text) {
        number.edit->setText(text);
    }
    number.edit->setPlaceholderText(text.isEmpty() ? various() : QString());
}

void MenuSettingsFrame::showColor(const Color& color) {
    const ColorNumber number = values_.*color.value;
    const bool differs = isVarious(number);
    color.well->setSwatch(differs ? Swatch() : Swatch{FillStyle::solid, number});
    color.preview->setText(differs ? various() : color.text);
    QPalette colors;
    if (!differs) {
        colors.setColor(QPalette::WindowText, qtColor(number));
        colors.setColor(QPalette::Window, groundFor(qtColor(number)));
    }
    color.preview->setPalette(colors);
    color.preview->setAlignment(qtAlignment(values_.*color.alignment));
}

void MenuSettingsFrame::refresh() {
    std::ranges::for_each(checks_, [this](const Check& check) { showCheck(check); });
    std::ranges::for_each(numbers_, [this](const Number& number) { showNumber(number); });
    for (const Alignment& alignment : alignments_) {
        alignment.list->setCurrentIndex(values_.*alignment.value);
    }
    std::ranges::for_each(colors_, [this](const Color& color) { showColor(color); });
}

} // namespace tarvel
