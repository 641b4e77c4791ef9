// Builds a row for each channel: check box, name, and three values with their names.
#include "panels/color_frame.h"

#include "panels/color_name_label.h"
#include "panels/value_label.h"
#include "widgets/control_names.h"
#include "widgets/qt_text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QSignalBlocker>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace tarvel {

namespace {

constexpr int valueDigits = 4;
constexpr int periodDigits = 7;

// A check box whose caption is shown by the colour name beside it.
class BareCheckBox : public QCheckBox {
  public:
    using QCheckBox::QCheckBox;

    [[nodiscard]] QSize sizeHint() const override {
        return {style()->pixelMetric(QStyle::PM_IndicatorWidth) + 2 * room,
                style()->pixelMetric(QStyle::PM_IndicatorHeight) + 2 * room};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    [[nodiscard]] bool hitButton(const QPoint& point) const override {
        return rect().contains(point);
    }
    void paintEvent(QPaintEvent* /*event*/) override {
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        option.rect = rect().adjusted(room, room, -room, -room);
        painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, option);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor outline = palette().color(QPalette::Text);
        outline.setAlphaF(0.45F); // styles leave it faint on a dark ground
        painter.setPen(outline);
        painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
        if (hasFocus()) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
            painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
        }
    }

  private:
    static constexpr int room = 3; // pixels around the indicator
};

QString spokenName(ChannelValue which) {
    switch (which) {
    case ChannelValue::Min:
        return QStringLiteral("minimum");
    case ChannelValue::Max:
        return QStringLiteral("maximum");
    default:
        return QStringLiteral("period in milliseconds");
    }
}

} // namespace

ColorFrame::ColorFrame(std::array<ColorChannel, channelCount>& channels, QWidget* parent)
    : QGroupBox(QStringLiteral("COLOR"), parent)
    , channels_(channels) {
    named(this, QStringLiteral("fraColor"), tr("Color values"));
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(2);
    grid->setVerticalSpacing(6);
    for (std::size_t channel = 0; channel < channelCount; ++channel) {
        addChannel(*grid, channel);
    }
    refresh();
}

void ColorFrame::addChannel(QGridLayout& grid, std::size_t channel) {
    const int row = static_cast<int>(channel);
    const QString name = qtText(channelNames[channel]);
    QCheckBox* check = named(new BareCheckBox(name), QStringLiteral("chkColr(%1)").arg(row),
                             tr("%1 is changed").arg(name));
    connect(check, &QCheckBox::toggled, this,
            [this, channel](bool checked) { channels_[channel].Enable = checked; });
    chkColr_[channel] = check;

    auto* lblColr = named(new ColorNameLabel(row), QStringLiteral("lblColr(%1)").arg(row),
                          tr("%1, can be dragged to copy its values").arg(name));
    connect(lblColr, &ColorNameLabel::clicked, check, &QCheckBox::toggle);
    connect(lblColr, &ColorNameLabel::channelDropped, this, [this, channel](int source) {
        for (const ChannelValue which : channelValues) {
            channels_[channel].setValue(
                which, channels_.at(static_cast<std::size_t>(source)).value(which));
        }
        refresh();
    });
    grid.addWidget(check, row, 0);
    grid.addWidget(lblColr, row, 1);
    for (const ChannelValue which : channelValues) {
        addValue(grid, channel, which);
    }
}

void ColorFrame::addValue(QGridLayout& grid, std::size_t channel, ChannelValue which) {
    const int row = static_cast<int>(channel);
    const int column = 2 + 2 * static_cast<int>(which);
    const QString name = qtText(channelValueName(which));
    const QString spoken =
        QStringLiteral("%1 %2").arg(qtText(channelNames[channel]), spokenName(which));
    auto* caption = new ColorDropLabel(name);
    caption->setObjectName(QStringLiteral("lbl") + name + QStringLiteral("1(%1)").arg(row));
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(caption, &ColorDropLabel::channelDropped, this, [this, channel, which](int source) {
        channels_[channel].setValue(which,
                                    channels_.at(static_cast<std::size_t>(source)).value(which));
        refresh();
    });

    const int digits = which == ChannelValue::Period ? periodDigits : valueDigits;
    auto* label = named(new ValueLabel(digits),
                        QStringLiteral("lbl") + name + QStringLiteral("(%1)").arg(row), spoken);
    connect(label, &ValueLabel::mouseMoved, this, [this, channel, which](int x, bool held) {
        pointer_.mouseMove(channels_[channel], which, x, held);
        refresh();
    });
    connect(label, &ValueLabel::stepped, this, [this, channel, which](double steps) {
        channels_[channel].drag(which, steps);
        refresh();
    });
    connect(label, &ValueLabel::valueAsked, this, [this, channel, which](double value) {
        channels_[channel].change(which, value);
        refresh();
    });
    caption->setBuddy(label);
    grid.addWidget(caption, row, column);
    grid.addWidget(label, row, column + 1);
    grid.setColumnStretch(column + 1, 1);
    values_[channel][static_cast<std::size_t>(which)] = label;
}

void ColorFrame::refresh() {
    for (std::size_t channel = 0; channel < channelCount; ++channel) {
        const QSignalBlocker quiet(chkColr_[channel]);
        chkColr_[channel]->setChecked(channels_[channel].Enable);
        for (const ChannelValue which : channelValues) {
            values_[channel][static_cast<std::size_t>(which)]->setValue(
                channels_[channel].value(which));
        }
    }
}

} // namespace tarvel
