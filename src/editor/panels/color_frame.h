// The frame "COLOR": values of the four channels of a Color modifier.
#pragma once

#include "editing/color_channels.h"

#include <QGroupBox>

#include <array>

class QCheckBox;
class QGridLayout;

namespace tarvel {

class ValueLabel;

/// fraColor. Shows and changes `channels`, which are not owned and outlive the frame.
class ColorFrame : public QGroupBox {
    Q_OBJECT

  public:
    explicit ColorFrame(std::array<ColorChannel, channelCount>& channels,
                        QWidget* parent = nullptr);

    /// Shows the channels as they are now.
    void refresh();

  private:
    void addChannel(QGridLayout& grid, std::size_t channel);
    void addValue(QGridLayout& grid, std::size_t channel, ChannelValue which);

    std::array<ColorChannel, channelCount>& channels_;
    HandlePointer pointer_;
    std::array<QCheckBox*, channelCount> chkColr_{};
    std::array<std::array<ValueLabel*, channelValues.size()>, channelCount> values_{};
};

} // namespace tarvel
