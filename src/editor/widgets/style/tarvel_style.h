// The look of the program: flat, one accent, one spacing grid, one button order.
#pragma once

#include <QProxyStyle>

namespace tarvel {

/// Paints over Fusion. Replaces the system's palette by the program's own of the same shade, also
/// when the system changes between light and dark while the program runs.
class TarvelStyle : public QProxyStyle {
    Q_OBJECT

  public:
    static constexpr int gridStep = 4; ///< pixels: distances are these or twice as many

    TarvelStyle();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                       SubControl part, const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& size, const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* data) const override;
};

} // namespace tarvel
