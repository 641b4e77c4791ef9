// Builds the lists of types and targets, and a page for each kind of values.
#include "panels/modifier_panel.h"

#include "editing/step_names.h"
#include "panels/color_frame.h"
#include "widgets/control_names.h"
#include "widgets/drop_down.h"
#include "widgets/prompts.h"
#include "widgets/qt_text.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <exception>
#include <utility>

namespace tarvel {

namespace {

constexpr auto copyHint =
    "Hint: To copy values from one color to another, drag the color name to another color name. "
    "Also, you can drag the color name onto a value name (min, max, or period) to copy a single "
    "value";

struct BoxNames {
    const char* name;
    const char* caption;
    const char* spoken;
};

constexpr std::array<BoxNames, 2> rangeBoxes = {
    {{"txtRangeX", "X", "X of the range"}, {"txtRangeY", "Y", "Y of the range"}}};
constexpr std::array<BoxNames, 4> boundsBoxes = {{{"txtBoundsL", "Left", "Left bound"},
                                                  {"txtBoundsT", "Top", "Top bound"},
                                                  {"txtBoundsR", "Right", "Right bound"},
                                                  {"txtBoundsB", "Bottom", "Bottom bound"}}};

// A page that keeps its frame at the top.
QWidget* pageOf(QWidget* frame) {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(frame);
    column->addStretch();
    return page;
}

QString spokenType(const std::string& type) {
    return type.empty() ? ModifierPanel::tr("without a type")
                        : QStringLiteral("\"%1\"").arg(qtText(type));
}

// What "None" means for an element with modifiers of these types. OK takes the first away, which
// the panel need not have shown.
QString aboutNone(const std::vector<std::string>& types) {
    if (types.empty()) {
        return ModifierPanel::tr("The element has no modifier.");
    }
    if (types.size() == 1) {
        return ModifierPanel::tr("The element has the modifier %1. OK removes it.")
            .arg(spokenType(types.front()));
    }
    QStringList all;
    for (const std::string& type : types) {
        all << spokenType(type);
    }
    return ModifierPanel::tr("The element has the modifiers %1. OK removes the first of them.")
        .arg(all.join(QStringLiteral(", ")));
}

void showRows(QComboBox& list, const std::vector<std::string>& rows, int chosen) {
    const QSignalBlocker quiet(list);
    list.clear();
    for (const std::string& row : rows) {
        list.addItem(qtText(row));
    }
    list.setCurrentIndex(chosen);
}

} // namespace

ModifierPanel::ModifierPanel(SkinDocument& document, Prompts& prompts,
                             std::filesystem::path programFolder, QWidget* parent)
    : BehaviourPanel(document, step::modifiers, QStringLiteral("fraModifier(0)"),
                     QStringLiteral("MODIFIER:"), parent)
    , prompts_(prompts)
    , programFolder_(std::move(programFolder))
    , lstMods_(named(new DropDown, QStringLiteral("lstMods"), tr("Type of modifier")))
    , lblTargets_(new QLabel(tr("Target")))
    , lstTargets_(named(new DropDown, QStringLiteral("lstTargets"), tr("Target of the modifier")))
    , frames_(new QStackedWidget)
    , lblNoValues_(new QLabel)
    , fraColor_(new ColorFrame(editor_.values().channels)) {
    setAccessibleName(tr("Modifier of the element"));
    addLists();
    addFrames();
    addOk(QStringLiteral("cmdModifierOK"), tr("store the modifier"));
    setFirstControl(lstMods_);
    connect(lstMods_, &QComboBox::currentIndexChanged, this, &ModifierPanel::lstMods_Click);
    connect(lstTargets_, &QComboBox::currentIndexChanged, this, &ModifierPanel::lstTargets_Click);
    refreshLists();
}

void ModifierPanel::addLists() {
    auto* lblMods = new QLabel(tr("Type"));
    lblMods->setBuddy(lstMods_);
    lblTargets_->setBuddy(lstTargets_);
    // Nothing moves when the targets come and go.
    for (QWidget* hidden :
         {static_cast<QWidget*>(lblTargets_), static_cast<QWidget*>(lstTargets_)}) {
        QSizePolicy policy = hidden->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        hidden->setSizePolicy(policy);
    }
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setColumnStretch(1, 1);
    grid->addWidget(lblMods, 0, 0);
    grid->addWidget(lstMods_, 0, 1);
    grid->addWidget(lblTargets_, 1, 0);
    grid->addWidget(lstTargets_, 1, 1);
    rows().addLayout(grid);
}

void ModifierPanel::addFrames() {
    lblNoValues_->setObjectName(QStringLiteral("lblNoValues"));
    lblNoValues_->setWordWrap(true);
    lblNoValues_->setTextFormat(Qt::PlainText); // types of a file may look like markup
    frames_->addWidget(pageOf(lblNoValues_));
    frames_->addWidget(pageOf(makeRange()));
    frames_->addWidget(pageOf(makeBounds()));
    frames_->addWidget(makeColorPage());
    rows().addWidget(frames_);
}

QLineEdit* ModifierPanel::makeTextBox(const QString& name, const QString& accessibleName,
                                      std::string& text) {
    auto* edit = named(new QLineEdit(qtText(text)), name, accessibleName);
    edit->setMinimumWidth(60);
    connect(edit, &QLineEdit::textChanged, this,
            [&text](const QString& typed) { text = coreText(typed); });
    textBoxes_.push_back({edit, &text});
    return edit;
}

QGroupBox* ModifierPanel::makeRange() {
    auto* frame = named(new QGroupBox(QStringLiteral("RANGE")), QStringLiteral("fraRange"),
                        tr("Range values"));
    auto* row = new QHBoxLayout;
    frame->setLayout(row);
    for (std::size_t i = 0; i < rangeBoxes.size(); ++i) {
        auto* caption = new QLabel(QLatin1String(rangeBoxes[i].caption));
        auto* box = makeTextBox(QLatin1String(rangeBoxes[i].name),
                                QLatin1String(rangeBoxes[i].spoken), editor_.values().range[i]);
        caption->setBuddy(box);
        row->addWidget(caption);
        row->addWidget(box, 1);
    }
    return frame;
}

QGroupBox* ModifierPanel::makeBounds() {
    auto* frame = named(new QGroupBox(QStringLiteral("BOUNDS")), QStringLiteral("fraBounds"),
                        tr("Bounds values"));
    auto* grid = new QGridLayout;
    frame->setLayout(grid);
    for (std::size_t i = 0; i < boundsBoxes.size(); ++i) {
        auto* caption = new QLabel(QLatin1String(boundsBoxes[i].caption));
        auto* box = makeTextBox(QLatin1String(boundsBoxes[i].name),
                                QLatin1String(boundsBoxes[i].spoken), editor_.values().bounds[i]);
        caption->setBuddy(box);
        const int row = static_cast<int>(i) / 2;
        const int column = static_cast<int>(i) % 2 * 2;
        grid->addWidget(caption, row, column);
        grid->addWidget(box, row, column + 1);
    }
    return frame;
}

QWidget* ModifierPanel::makeColorPage() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    auto* hint = new QLabel(QLatin1String(copyHint));
    hint->setWordWrap(true);
    column->addWidget(fraColor_);
    column->addWidget(hint);
    column->addStretch();
    return page;
}

void ModifierPanel::fill(const Element& element) {
    carried_ = modifierTypes(element.elementModifiers.get());
    try {
        editor_.open(ModifierCatalogue::read(catalogueFile(programFolder_)), element.elementKind,
                     element.elementModifiers.get());
    } catch (const std::exception& error) {
        prompts_.message(window(), QString::fromUtf8(error.what()));
    }
    for (const TextBox& box : textBoxes_) {
        const QSignalBlocker quiet(box.edit);
        box.edit->setText(qtText(*box.text));
    }
    fraColor_->refresh();
    refreshLists();
}

bool ModifierPanel::suits(ElementKind kind) const {
    return editor_.isOffered(kind);
}

void ModifierPanel::store(Element& element) const {
    XmlTree modifiers = editor_.stored(element.elementModifiers.get());
    element.elementModifiers =
        modifiers.empty() ? SharedValue<XmlTree>() : SharedValue(std::move(modifiers));
}

void ModifierPanel::lstMods_Click(int row) {
    editor_.chooseType(std::max(row, 0)); // no row is as little as "None"
    refreshLists();
}

void ModifierPanel::lstTargets_Click(int row) {
    if (row < 0) {
        refreshLists(); // the chosen target stays
        return;
    }
    editor_.chooseTarget(row);
    refreshFrames();
}

void ModifierPanel::refreshLists() {
    showRows(*lstMods_, editor_.mods(), editor_.modRow());
    showRows(*lstTargets_, editor_.targets(), editor_.targetRow());
    lblTargets_->setVisible(editor_.targetsShown());
    lstTargets_->setVisible(editor_.targetsShown());
    refreshFrames();
}

void ModifierPanel::refreshFrames() {
    if (editor_.modRow() == 0) {
        lblNoValues_->setText(aboutNone(carried_));
    } else if (editor_.targets().empty()) {
        lblNoValues_->setText(tr("This type has no targets, so it cannot be attached."));
    } else {
        lblNoValues_->setText(tr("This type takes no values."));
    }
    frames_->setCurrentIndex(static_cast<int>(editor_.frame()));
}

} // namespace tarvel
