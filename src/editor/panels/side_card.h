// A panel that lies over a side of the window.
#pragma once

#include <QFrame>

class QLabel;

namespace tarvel {

/// Draws the ground and the edge that part it from what lies below.
class SideCard : public QFrame {
    Q_OBJECT

  public:
    /// Between its edge and its content, and between the rows of that, in pixels.
    static constexpr int margin = 14;
    static constexpr int spacing = 10;

  protected:
    explicit SideCard(QWidget* parent);

    /// The caption at its top.
    [[nodiscard]] static QLabel* headingOf(const QString& text);

    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvel
