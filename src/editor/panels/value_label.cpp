// Handles the events of a draggable number, and paints it.
#include "panels/value_label.h"

#include "widgets/qt_text.h"

#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <array>

namespace tarvel {

namespace {

constexpr int horizontalPadding = 12; // room for an arrow
constexpr int verticalPadding = 3;
constexpr qreal cornerRadius = 3;
constexpr double pageStep = 10;

// What assistive programs see: a number that can be changed.
class AccessibleValue : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit AccessibleValue(ValueLabel* label)
        : QAccessibleWidget(label, QAccessible::SpinBox) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) {
            return static_cast<QAccessibleValueInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return label()->value(); }
    void setCurrentValue(const QVariant& value) override {
        emit label()->valueAsked(value.toDouble());
    }
    QVariant maximumValue() const override { return {}; }
    QVariant minimumValue() const override { return {}; }
    QVariant minimumStepSize() const override { return {}; }

  private:
    ValueLabel* label() const { return static_cast<ValueLabel*>(widget()); }
};

QAccessibleInterface* accessibleValue(const QString& /*className*/, QObject* object) {
    auto* label = qobject_cast<ValueLabel*>(object);
    return label != nullptr ? new AccessibleValue(label) : nullptr;
}

void drawArrow(QPainter& painter, QPointF tip, qreal direction) {
    constexpr qreal size = 3;
    const std::array<QPointF, 3> arrow = {tip + QPointF(direction * size, -size), tip,
                                          tip + QPointF(direction * size, size)};
    painter.drawPolyline(arrow.data(), static_cast<int>(arrow.size()));
}

} // namespace

ValueLabel::ValueLabel(int digits, QWidget* parent)
    : QLabel(parent)
    , digits_(digits) {
    static const bool installed = [] {
        QAccessible::installFactory(accessibleValue);
        return true;
    }();
    Q_UNUSED(installed);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SizeHorCursor);
    setMouseTracking(true);
    setAlignment(Qt::AlignCenter);
    setTextFormat(Qt::PlainText);
    setText(qtText(numberText(value_)));
}

void ValueLabel::setValue(double value) {
    if (value == value_) {
        return;
    }
    value_ = value;
    setText(qtText(numberText(value)));
    setToolTip(text().size() > digits_ ? text() : QString());
    QAccessibleValueChangeEvent changed(this, value);
    QAccessible::updateAccessibility(&changed);
}

QSize ValueLabel::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {digits_ * metrics.horizontalAdvance(QLatin1Char('0')) + 2 * horizontalPadding,
            metrics.height() + 2 * verticalPadding};
}

void ValueLabel::mouseMoveEvent(QMouseEvent* event) {
    emit mouseMoved(event->position().toPoint().x(), (event->buttons() & Qt::LeftButton) != 0);
}

void ValueLabel::wheelEvent(QWheelEvent* event) {
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    constexpr int eighthsPerStep = QWheelEvent::DefaultDeltasPerStep;
    wheelRest_ += event->angleDelta().y();
    const int steps = wheelRest_ / eighthsPerStep;
    wheelRest_ %= eighthsPerStep;
    if (steps != 0) {
        emit stepped(steps);
    }
    event->accept();
}

void ValueLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        emit stepped(-1);
        break;
    case Qt::Key_Right:
    case Qt::Key_Up:
        emit stepped(1);
        break;
    case Qt::Key_PageDown:
        emit stepped(-pageStep);
        break;
    case Qt::Key_PageUp:
        emit stepped(pageStep);
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

void ValueLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void ValueLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    wheelRest_ = 0;
    update();
}

void ValueLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::Text);
    QColor faint = ink;
    faint.setAlphaF(0.45F);
    const bool focused = hasFocus();
    painter.setBrush(palette().color(QPalette::Base));
    painter.setPen(QPen(focused ? palette().color(QPalette::Highlight) : faint, focused ? 2 : 1));
    const qreal inset = focused ? 1 : 0.5;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius,
                            cornerRadius);
    painter.setPen(QPen(faint, 1.2));
    const qreal middle = height() / 2.0;
    drawArrow(painter, {4.5, middle}, 1);
    drawArrow(painter, {width() - 4.5, middle}, -1);
    painter.setPen(ink);
    const QRect inside = rect().adjusted(horizontalPadding, 0, -horizontalPadding, 0);
    painter.drawText(inside, Qt::AlignCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, inside.width()));
}

} // namespace tarvel
