// Paints panels, buttons, fields and marks; Fusion does the rest.
#include "widgets/style/tarvel_style.h"

#include "widgets/style/contrast.h"
#include "widgets/style/flat_painting.h"
#include "widgets/style/heading.h"
#include "widgets/style/palettes.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>

namespace tarvel {

namespace {

constexpr int step = TarvelStyle::gridStep;

QFontMetrics headingMetrics(const QWidget* widget, const QStyleOption& option) {
    return widget == nullptr ? option.fontMetrics : QFontMetrics(headingFont(widget->font()));
}

void paintHeading(QPainter& painter, const QStyleOptionGroupBox& box, const QRect& rect) {
    painter.save();
    painter.setFont(headingFont(painter.font()));
    painter.setPen(box.palette.color(QPalette::WindowText));
    painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, box.text);
    painter.restore();
}

bool showsHover(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QScrollBar*>(&widget) != nullptr;
}

// What stands on a checked button is in the colours of selected text.
template <class Button> void setChecked(Button& option) {
    const QColor text = option.palette.color(QPalette::HighlightedText);
    option.palette.setColor(QPalette::ButtonText, text);
    option.palette.setColor(QPalette::WindowText, text);
    if (!option.icon.isNull()) {
        option.icon = QIcon(option.icon.pixmap(option.iconSize, QIcon::Selected));
    }
}

// What shows in the corners between a rounded frame and the content, which has none.
QColor groundInFrame(const QWidget* widget) {
    const auto* area = qobject_cast<const QAbstractScrollArea*>(widget);
    return area == nullptr ? QColor()
                           : area->viewport()->palette().color(area->viewport()->backgroundRole());
}

// The menu opens at a press anywhere on the button, and an arrow behind the caption tells of it.
bool opensMenu(const QStyleOptionToolButton& button) {
    return button.features.testFlag(QStyleOptionToolButton::HasMenu) &&
           !button.features.testFlag(QStyleOptionToolButton::MenuButtonPopup);
}

constexpr int menuArrow = 4 * step; // pixels that the arrow takes behind the caption

void paintMenuButton(const QStyle& style, const QStyleOptionToolButton& button, QPainter& painter,
                     const QWidget* widget) {
    QStyleOptionToolButton ground = button;
    ground.text.clear();
    ground.features.setFlag(QStyleOptionToolButton::HasMenu, false);
    style.drawComplexControl(QStyle::CC_ToolButton, &ground, &painter, widget);
    QStyleOptionToolButton label = button;
    label.rect.setRight(button.rect.right() - menuArrow + step);
    style.drawControl(QStyle::CE_ToolButtonLabel, &label, &painter, widget);
    paintArrow(painter, button.rect.adjusted(button.rect.width() - menuArrow - 1, 0, -step, 0),
               Qt::DownArrow, button.palette.color(QPalette::ButtonText));
}

// A caption beside its icon has all that is left behind it, else.
QStyleOptionToolButton inTheMiddle(const QStyleOptionToolButton& label) {
    QStyleOptionToolButton middle = label;
    if (label.toolButtonStyle == Qt::ToolButtonTextBesideIcon) {
        constexpr int around = 2; // pixels on each side of the icon
        const int caption = label.fontMetrics.size(Qt::TextShowMnemonic, label.text).width();
        const int left = label.rect.width() - label.iconSize.width() - 3 * around - caption;
        const int aside = std::max(0, left / 2);
        middle.rect.translate(label.direction == Qt::RightToLeft ? -aside : aside, 0);
    }
    return middle;
}

bool isChecked(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_On) && option.state.testFlag(QStyle::State_Enabled);
}

void paintScrollBar(const QStyle& style, const QStyleOptionSlider& bar, QPainter& painter,
                    const QWidget* widget) {
    const QPalette& palette = bar.palette;
    const QColor ground = palette.color(QPalette::Window);
    painter.fillRect(bar.rect, ground);
    const auto part = [&](QStyle::SubControl control) {
        return style.subControlRect(QStyle::CC_ScrollBar, &bar, control, widget);
    };
    const bool isAcross = bar.orientation == Qt::Horizontal;
    const bool isHeld = bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) &&
                        bar.state.testFlag(QStyle::State_Enabled);
    const QColor handle = palette.color(isHeld ? QPalette::Dark : QPalette::Mid);
    const QColor arrow = palette.color(QPalette::WindowText);
    if (bar.maximum > bar.minimum) {
        paintFlat(painter,
                  part(QStyle::SC_ScrollBarSlider)
                      .adjusted(isAcross ? 0 : step - 1, isAcross ? step - 1 : 0,
                                isAcross ? 0 : 1 - step, isAcross ? 1 - step : 0),
                  isHeld && shadeOf(palette) == Shade::dark ? arrow : handle, {});
    }
    paintArrow(painter, part(QStyle::SC_ScrollBarSubLine), isAcross ? Qt::LeftArrow : Qt::UpArrow,
               arrow);
    paintArrow(painter, part(QStyle::SC_ScrollBarAddLine),
               isAcross ? Qt::RightArrow : Qt::DownArrow, arrow);
}

void paintDropDown(const QStyle& style, const QStyleOptionComboBox& box, QPainter& painter,
                   const QWidget* widget) {
    if (box.editable) {
        paintField(painter, box);
    } else {
        paintButtonGround(painter, box, false);
    }
    paintArrow(painter,
               style.subControlRect(QStyle::CC_ComboBox, &box, QStyle::SC_ComboBoxArrow, widget),
               Qt::DownArrow, box.palette.color(QPalette::ButtonText));
}

void paintSpinBox(const QStyle& style, const QStyleOptionSpinBox& box, QPainter& painter,
                  const QWidget* widget) {
    paintField(painter, box);
    const auto arrow = [&](QStyle::SubControl control, QAbstractSpinBox::StepEnabledFlag flag,
                           Qt::ArrowType direction) {
        const bool mayStep = box.stepEnabled.testFlag(flag);
        paintArrow(painter, style.subControlRect(QStyle::CC_SpinBox, &box, control, widget),
                   direction,
                   box.palette.color(mayStep ? QPalette::Active : QPalette::Disabled,
                                     QPalette::WindowText));
    };
    arrow(QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, Qt::UpArrow);
    arrow(QStyle::SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, Qt::DownArrow);
}

} // namespace

TarvelStyle::TarvelStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion"))) {
    setObjectName(QStringLiteral("tarvel"));
}

void TarvelStyle::polish(QPalette& palette) {
    palette = paletteOf(shadeOf(palette));
}

void TarvelStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (showsHover(*widget)) {
        widget->setAttribute(Qt::WA_Hover);
    }
}

void TarvelStyle::unpolish(QWidget* widget) {
    QProxyStyle::unpolish(widget);
}

void TarvelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    switch (element) {
    case PE_PanelButtonCommand: {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        const bool isDefault =
            button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
        const bool isFlat =
            button != nullptr && button->features.testFlag(QStyleOptionButton::Flat) &&
            (option->state & (State_On | State_Sunken | State_HasFocus | State_MouseOver)) == 0;
        if (!isFlat) {
            paintButtonGround(*painter, *option, isDefault);
        }
        return;
    }
    case PE_PanelButtonTool:
        paintButtonGround(*painter, *option, false);
        return;
    case PE_PanelLineEdit:
        if (const auto* panel = qstyleoption_cast<const QStyleOptionFrame*>(option);
            panel != nullptr && panel->lineWidth > 0) {
            paintField(*painter, *option);
            return;
        }
        break;
    case PE_FrameLineEdit:
        return; // painted with the ground
    case PE_Frame:
        paintFlat(*painter, option->rect, groundInFrame(widget),
                  option->palette.color(option->state.testFlag(State_HasFocus) ? QPalette::Highlight
                                                                               : QPalette::Mid));
        return;
    case PE_IndicatorCheckBox:
        paintCheckMark(*painter, *option, false);
        return;
    case PE_IndicatorRadioButton:
        paintCheckMark(*painter, *option, true);
        return;
    case PE_FrameFocusRect:
        if (option->state.testFlag(State_KeyboardFocusChange) &&
            (widget == nullptr || !widget->inherits("QPushButton")) &&
            (widget == nullptr || !widget->inherits("QToolButton"))) {
            paintFocus(*painter, *option);
        }
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void TarvelStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (element == CE_ToolButtonLabel) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
            QStyleOptionToolButton label = inTheMiddle(*button);
            if (isChecked(*option)) {
                setChecked(label);
            }
            QProxyStyle::drawControl(element, &label, painter, widget);
            return;
        }
    }
    if (element == CE_PushButtonLabel && isChecked(*option)) {
        if (const auto* label = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            QStyleOptionButton checked = *label;
            setChecked(checked);
            QProxyStyle::drawControl(element, &checked, painter, widget);
            return;
        }
    }
    if (element == CE_MenuItem && option->state.testFlag(State_Selected) &&
        option->state.testFlag(State_Enabled)) {
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
            item != nullptr && !item->icon.isNull()) {
            QStyleOptionMenuItem marked = *item;
            const int side = pixelMetric(PM_SmallIconSize, option, widget);
            marked.icon = QIcon(item->icon.pixmap(QSize(side, side), QIcon::Selected));
            QProxyStyle::drawControl(element, &marked, painter, widget);
            return;
        }
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void TarvelStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        control == CC_GroupBox && box != nullptr) {
        paintFlat(*painter, option->rect, panelGround(option->palette), {});
        paintHeading(*painter, *box,
                     proxy()->subControlRect(control, option, SC_GroupBoxLabel, widget));
    } else if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
               control == CC_ScrollBar && bar != nullptr) {
        paintScrollBar(*proxy(), *bar, *painter, widget);
    } else if (const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
               control == CC_ComboBox && list != nullptr) {
        paintDropDown(*proxy(), *list, *painter, widget);
    } else if (const auto* number = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
               control == CC_SpinBox && number != nullptr) {
        paintSpinBox(*proxy(), *number, *painter, widget);
    } else if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
               control == CC_ToolButton && button != nullptr && opensMenu(*button)) {
        paintMenuButton(*proxy(), *button, *painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect TarvelStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                  SubControl part, const QWidget* widget) const {
    const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || box == nullptr) {
        return QProxyStyle::subControlRect(control, option, part, widget);
    }
    const QFontMetrics metrics = headingMetrics(widget, *option);
    const int heading = box->text.isEmpty() ? 0 : step + metrics.height();
    switch (part) {
    case SC_GroupBoxLabel:
        return {option->rect.left() + 2 * step, option->rect.top() + step,
                metrics.size(Qt::TextShowMnemonic, box->text).width(), metrics.height()};
    case SC_GroupBoxContents:
        return option->rect.adjusted(0, heading, 0, 0);
    default:
        return option->rect;
    }
}

QSize TarvelStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& size, const QWidget* widget) const {
    if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
        type == CT_ToolButton && button != nullptr && opensMenu(*button)) {
        return QProxyStyle::sizeFromContents(type, option, size, widget) + QSize(menuArrow, 0);
    }
    const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (type != CT_GroupBox || box == nullptr) {
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }
    const QFontMetrics metrics = headingMetrics(widget, *option);
    return {std::max(size.width(), metrics.size(Qt::TextShowMnemonic, box->text).width()) +
                4 * step,
            size.height() + metrics.height() + step};
}

int TarvelStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
    case PM_LayoutHorizontalSpacing:
        return 2 * step;
    case PM_LayoutVerticalSpacing:
        return widget != nullptr && qobject_cast<QDialog*>(widget->window()) != nullptr ? 2 * step
                                                                                        : step;
    case PM_DefaultFrameWidth: // what scrolls leaves the corners of its rounded frame free
        return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr
                   ? 2
                   : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int TarvelStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
    switch (hint) {
    case SH_DialogButtonLayout:
        return QDialogButtonBox::WinLayout;
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

} // namespace tarvel
