// Finds keys by mnemonics, and shows tips with them.
#include "widgets/tool_tips.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHash>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

namespace tarvel {

namespace {

QKeySequence keyOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->shortcut();
    }
    const auto labels = widget.window()->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->buddy() == &widget) {
            return QKeySequence::mnemonic(label->text());
        }
    }
    return {};
}

} // namespace

QString toolTipOf(const QWidget& widget) {
    const QKeySequence key = keyOf(widget);
    return widget.toolTip().isEmpty() || key.isEmpty()
               ? widget.toolTip()
               : QStringLiteral("%1 (%2)").arg(widget.toolTip(),
                                               key.toString(QKeySequence::NativeText));
}

ToolTips::ToolTips(QWidget& window)
    : QObject(&window) {
    qApp->installEventFilter(this);
}

bool ToolTips::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip && watched->isWidgetType()) {
        auto& widget = *static_cast<QWidget*>(watched);
        const QString tip = toolTipOf(widget);
        if (tip != widget.toolTip()) {
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, &widget);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void setToolTips(QWidget& window, std::span<const ControlTip> tips) {
    QHash<QString, const char*> byName;
    for (const auto& [control, tip] : tips) {
        byName.insert(QLatin1String(control), tip);
    }
    const auto controls = window.findChildren<QWidget*>();
    for (QWidget* control : controls) {
        const QString name = control->objectName().section(QLatin1Char('('), 0, 0);
        if (name.isEmpty() || !control->toolTip().isEmpty()) {
            continue;
        }
        const QString full = control->window()->objectName() + QLatin1Char('/') + name;
        if (const char* tip = byName.value(full, byName.value(name))) {
            control->setToolTip(QCoreApplication::translate("ToolTips", tip));
        }
    }
}

} // namespace tarvel
