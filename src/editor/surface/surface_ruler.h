// A ruler along an edge of the surface's room: skin pixels, and where the pointer is.
#pragma once

#include <QWidget>

#include <optional>

namespace tarvel {

/// Shows what SurfaceRoom tells it, in pixels of the window from its own start.
class SurfaceRuler : public QWidget {
    Q_OBJECT

  public:
    SurfaceRuler(Qt::Orientation orientation, QWidget* parent);

    /// Skin pixel 0 is at `origin`, and the next ones are `scale` pixels of the window apart; the
    /// screen has `length` of them.
    void setView(double origin, double scale, int length);
    /// Marks the pointer's place, in skin pixels; nothing takes the mark away.
    void setPointer(std::optional<double> skin);
    [[nodiscard]] std::optional<double> pointer() const { return pointer_; }
    /// Where a skin pixel is on the ruler.
    [[nodiscard]] double placeOf(double skin) const { return origin_ + skin * scale_; }

    /// Its height, or width when it stands upright.
    [[nodiscard]] int thickness() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QRect markRect() const;
    void paintTicks(QPainter& painter, const QRect& part) const;
    void paintNumber(QPainter& painter, int number) const;

    Qt::Orientation orientation_;
    double origin_ = 0;
    double scale_ = 1;
    int length_ = 0;
    std::optional<double> pointer_;
};

} // namespace tarvel
