// Sets the style of the application.
#include "window/style_choice.h"

#include "widgets/remembered.h"
#include "widgets/style/palettes.h"
#include "widgets/style/tarvel_style.h"

#include <QAction>
#include <QApplication>
#include <QStyleFactory>

namespace tarvel {

namespace {

constexpr RememberedSwitch systemStyleKey{"systemStyle", false};

bool isOwn(const QStyle& style) {
    return qobject_cast<const TarvelStyle*>(&style) != nullptr;
}

// The style that was there before the first of our own: the desktop's, or that of the command line.
QString& systemName() {
    static QString name = QApplication::style()->name();
    return name;
}

// That of Windows has no dark parts.
QString styleFor(Shade shade) {
    const QString& name = systemName();
    return shade == Shade::dark && name == QLatin1String("windowsvista") ? QStringLiteral("fusion")
                                                                         : name;
}

} // namespace

StyleChoice::StyleChoice(Remembered& remembered)
    : remembered_(remembered) {
    choose(remembered.value(systemStyleKey));
}

void StyleChoice::offer(QAction& systemStyle) {
    systemStyle.setCheckable(true);
    systemStyle.setChecked(remembered_.value(systemStyleKey));
    connect(&systemStyle, &QAction::toggled, this, [this](bool checked) {
        remembered_.remember(systemStyleKey, checked);
        choose(checked);
    });
}

void StyleChoice::choose(bool system) {
    const QString name = styleFor(shadeOf(QApplication::palette())); // before it is another one
    if (system == isOwn(*QApplication::style())) {
        QApplication::setStyle(system ? QStyleFactory::create(name) : new TarvelStyle);
    }
}

} // namespace tarvel
