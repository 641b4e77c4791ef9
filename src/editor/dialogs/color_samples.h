// What the dashboard's message box and system menu look like in given colours.
#pragma once

#include "document/skin_settings.h"

#include <QWidget>

#include <vector>

class QLabel;

namespace tarvel {

/// A sample box with its sample texts, on a ground that shines through what is not opaque. The box
/// is named shp(0) or shp(1), its texts txt(i) by SampleText.
class ColorSample : public QWidget {
    Q_OBJECT

  public:
    /// box: 0 message box, 1 system menu.
    explicit ColorSample(std::size_t box, QWidget* parent = nullptr);

    void showColors(const SystemColors& colors);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct Text {
        std::size_t index; ///< of SampleText
        QLabel* label;
    };

    void addText(SampleText which);
    [[nodiscard]] QRect boxRect() const;

    std::size_t box_;
    std::vector<Text> texts_;
    SampleBox look_;
    double opacity_ = 1;
};

} // namespace tarvel
