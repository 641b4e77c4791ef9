// Answers screen readers for widgets that carry a role as a property.
#include "widgets/accessible_roles.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>

namespace tarvel {

namespace {

constexpr auto roleProperty = "tarvelAccessibleRole";

class RadioButton : public QAccessibleWidget {
  public:
    explicit RadioButton(QAbstractButton& button)
        : QAccessibleWidget(&button, QAccessible::RadioButton)
        , button_(button) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = button_.isChecked();
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return button_.isEnabled() ? QStringList(pressAction()) : QStringList();
    }
    void doAction(const QString& name) override {
        if (name == pressAction()) {
            button_.click();
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override {
        return {};
    }

  private:
    QAbstractButton& button_;
};

QAccessibleInterface* interfaceFor(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || !widget->property(roleProperty).isValid()) {
        return nullptr;
    }
    const auto role = static_cast<QAccessible::Role>(widget->property(roleProperty).toInt());
    auto* button = qobject_cast<QAbstractButton*>(widget);
    return role == QAccessible::RadioButton && button != nullptr
               ? new RadioButton(*button)
               : new QAccessibleWidget(widget, role);
}

void setRole(QWidget& widget, QAccessible::Role role) {
    static const bool installed = [] {
        QAccessible::installFactory(interfaceFor);
        return true;
    }();
    Q_UNUSED(installed)
    widget.setProperty(roleProperty, static_cast<int>(role));
}

} // namespace

void beCanvas(QWidget& widget) {
    setRole(widget, QAccessible::Canvas);
}

void beHandle(QWidget& widget) {
    setRole(widget, QAccessible::Separator);
}

void beRadioButton(QAbstractButton& button) {
    setRole(button, QAccessible::RadioButton);
    // A factory's interface is not told of what Qt's own knows by itself.
    QObject::connect(&button, &QAbstractButton::toggled, &button, [&button] {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(&button, changed);
        QAccessible::updateAccessibility(&event);
    });
}

} // namespace tarvel
