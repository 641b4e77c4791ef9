// Lets system colours and their opacities be chosen, and shows them in the samples.
#include "dialogs/frm_colors.h"

#include "dialogs/color_samples.h"
#include "widgets/color_swatch.h"
#include "widgets/control_names.h"
#include "widgets/field_edit.h"
#include "widgets/opacity_field.h"
#include "widgets/prompts.h"
#include "widgets/qt_text.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace tarvel {

namespace {

QString swatchName(const SystemColor& color) {
    const char* array = "Col";
    if (color.use == ColorUse::border) {
        array = "bColor";
    } else if (color.use == ColorUse::fill) {
        array = "fColor";
    }
    return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(color.index);
}

} // namespace

FrmColors::FrmColors(SkinDocument& document, Prompts& prompts, QWidget* parent)
    : SkinDialog(QStringLiteral("frmColors"), QStringLiteral("  :: System Colors ::"), document,
                 prompts, parent) {
    auto* column = new QVBoxLayout(this);
    for (std::size_t box = 0; box < colorGroups.size(); ++box) {
        column->addWidget(makeGroup(box));
    }
    column->addWidget(makeOk(), 0, Qt::AlignRight);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

QGroupBox* FrmColors::makeGroup(std::size_t box) {
    const ColorGroup& group = colorGroups.at(box);
    auto* frame = new QGroupBox(qtText(group.caption));
    auto* grid = new QGridLayout(frame);
    grid->setVerticalSpacing(3); // with large fonts the dialog is nearly as high as a low display
    grid->setHorizontalSpacing(12);
    int row = 0;
    for (const auto& color : group.colors) {
        ColorSwatch* swatch = makeSwatch(color);
        if (color.label.empty()) {
            swatch->setText(tr("Box"));
            grid->addWidget(swatch, row, 2, Qt::AlignCenter);
            continue;
        }
        auto* label = new QLabel(qtText(color.label));
        label->setBuddy(swatch);
        grid->addWidget(label, row, 0);
        grid->addWidget(swatch, row, 1);
        ++row;
    }
    auto* edit =
        named(new FieldEdit, QStringLiteral("txtAlpha(%1)").arg(box),
              box == 0 ? tr("Opacity % of the message box") : tr("Opacity % of the system menu"));
    edit->setToolTip(tr("Shown in the sample. Skin files have no place for this opacity."));
    connect(edit, &QLineEdit::textChanged, this, [this, box] { txtAlpha_Change(box); });
    txtAlpha_.at(box) = edit;
    grid->addWidget(new OpacityField(edit), row, 0, 1, 2);
    shp_.at(box) = new ColorSample(box);
    const bool swatchBelow = group.colors.back().label.empty();
    grid->addWidget(shp_.at(box), 0, 2, swatchBelow ? row : row + 1, 1);
    return frame;
}

ColorSwatch* FrmColors::makeSwatch(const SystemColor& color) {
    auto* swatch = named(new ColorSwatch, swatchName(color), qtText(color.meaning));
    const Row row{color, swatch};
    connect(swatch, &QAbstractButton::clicked, this, [this, row] { Col_Click(row); });
    rows_.push_back(row);
    return swatch;
}

void FrmColors::readDocument() {
    const SystemColors& colors = document().settings().systemColors;
    for (std::size_t box = 0; box < txtAlpha_.size(); ++box) {
        const QSignalBlocker quiet(txtAlpha_[box]);
        txtAlpha_[box]->setText(qtText(colors.opacityTexts[box]));
    }
    showColors();
}

void FrmColors::showColors() {
    const SystemColors& colors = document().settings().systemColors;
    for (const auto& [color, swatch] : rows_) {
        swatch->setColor(colorOf(colors, color));
    }
    for (ColorSample* sample : shp_) {
        sample->showColors(colors);
    }
}

void FrmColors::Col_Click(const Row& row) {
    const auto chosen = prompts().color(this, qtColor(row.swatch->color()));
    if (chosen) {
        document().editSettings([&](SkinSettings& settings) {
            setColor(settings.systemColors, row.color, colorNumber(*chosen));
        });
        showColors();
    }
}

void FrmColors::txtAlpha_Change(std::size_t box) {
    document().editSettings([&](SkinSettings& settings) {
        settings.systemColors.opacityTexts.at(box) = coreText(txtAlpha_.at(box)->text());
    });
    showColors();
}

void FrmColors::cmdOK_Click() {
    const int improper = firstImproperOpacity(document().settings().systemColors);
    if (improper < 0) {
        accept();
        return;
    }
    prompts().message(this, qtText(opacityMessage));
    FieldEdit* box = txtAlpha_.at(static_cast<std::size_t>(improper));
    box->setFocus();
    box->sel();
}

} // namespace tarvel
