// Looking for what a layout does wrong: parts that overlap, texts that are cut, what lies outside.
#pragma once

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolButton>
#include <QWidget>

namespace tarvel::test {

inline QString nameOf(const QWidget& widget) {
    QString name = widget.objectName();
    for (const QWidget* at = widget.parentWidget(); name.isEmpty() && at != nullptr;
         at = at->parentWidget()) {
        name = at->objectName().isEmpty() ? QString() : at->objectName() + "/...";
    }
    return QString("%1 %2").arg(widget.metaObject()->className(), name);
}

/// How wide and how high the widget has to be for its text; empty for one without a text, or whose
/// text is shortened on purpose.
inline QSize roomForText(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const bool isShortened = label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        if (label->text().isEmpty() || isShortened) {
            return {};
        }
        return label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                                 : label->sizeHint();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        const bool hasText = !button->text().isEmpty();
        return hasText ? button->sizeHint().boundedTo(button->maximumSize()) : QSize();
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
        return {box->fontMetrics().horizontalAdvance(box->title()), 0};
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        if (list->sizeAdjustPolicy() != QComboBox::AdjustToMinimumContentsLengthWithIcon) {
            return list->minimumSizeHint();
        }
        return {0, list->minimumSizeHint().height()};
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        if (qobject_cast<const QComboBox*>(edit->parentWidget()) != nullptr) {
            return {}; // without the frame that its hint counts
        }
        return {0, edit->minimumSizeHint().height()};
    }
    return {};
}

/// Whether the widget's parent lays it out, so that it has to stay clear of its siblings.
inline bool isLaidOut(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    return parent != nullptr && parent->layout() != nullptr &&
           parent->layout()->indexOf(const_cast<QWidget*>(&widget)) >= 0;
}

inline bool isScrolled(const QWidget& widget) {
    const auto* area =
        widget.parentWidget() == nullptr
            ? nullptr
            : qobject_cast<const QAbstractScrollArea*>(widget.parentWidget()->parentWidget());
    return area != nullptr && area->viewport() == widget.parentWidget();
}

/// The faults of all that is visible in a window, each in words; empty when there is none.
inline QStringList layoutFaults(const QWidget& window) {
    QStringList faults;
    const auto text = [](const QRect& rect) {
        return QString("%1,%2 %3x%4")
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height());
    };
    QList<const QWidget*> all{&window};
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisibleTo(&window) && !widget->objectName().startsWith("qt_") &&
            widget->window() == &window) {
            all << widget;
        }
    }
    for (const QWidget* widget : all) {
        const QSize room = roomForText(*widget);
        if (room.width() > widget->width() || room.height() > widget->height()) {
            faults << QString("%1 is cut: %2 in %3")
                          .arg(nameOf(*widget), text(QRect(QPoint(), room)),
                               text(widget->geometry()));
        }
        if (widget == &window || isScrolled(*widget) || !isLaidOut(*widget)) {
            continue;
        }
        const QWidget& parent = *widget->parentWidget();
        if (!parent.rect().contains(widget->geometry())) {
            faults << QString("%1 is outside: %2 in %3")
                          .arg(nameOf(*widget), text(widget->geometry()), text(parent.rect()));
        }
        for (const QWidget* other : all) {
            if (other > widget && other->parentWidget() == &parent && isLaidOut(*other) &&
                other->geometry().intersects(widget->geometry())) {
                faults << QString("%1 overlaps %2").arg(nameOf(*widget), nameOf(*other));
            }
        }
    }
    return faults;
}

} // namespace tarvel::test
