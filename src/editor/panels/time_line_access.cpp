// Answers screen readers for the time line.
#include "panels/time_line_access.h"

#include "panels/time_line.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

constexpr double millisecondsPerSecond = 1000;

// Beyond its end the line stands there.
double secondsOf(const TimeLine& line) {
    return static_cast<double>(std::min(line.time(), TimeLine::length)) / millisecondsPerSecond;
}

class Slider : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit Slider(TimeLine& line)
        : QAccessibleWidget(&line, QAccessible::Slider)
        , line_(line) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QVariant currentValue() const override { return secondsOf(line_); }
    void setCurrentValue(const QVariant& value) override {
        const double most = maximumValue().toDouble();
        const double seconds = std::clamp(value.toDouble(), 0.0, most);
        emit line_.timeChosen(std::llround(seconds * millisecondsPerSecond));
    }
    [[nodiscard]] QVariant maximumValue() const override {
        return static_cast<double>(TimeLine::length) / millisecondsPerSecond;
    }
    [[nodiscard]] QVariant minimumValue() const override { return 0.0; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 0.1; } // that of the keys

  private:
    TimeLine& line_;
};

QAccessibleInterface* interfaceFor(const QString& /*className*/, QObject* object) {
    auto* line = qobject_cast<TimeLine*>(object);
    return line == nullptr ? nullptr : new Slider(*line);
}

} // namespace

void beSliders() {
    static const bool installed = [] {
        QAccessible::installFactory(interfaceFor);
        return true;
    }();
    Q_UNUSED(installed)
}

void tellTime(TimeLine& line) {
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(&line, secondsOf(line));
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace tarvel
