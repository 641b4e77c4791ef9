// The first half minute of a screen: when each of its elements is shown.
#pragma once

#include "playing/timer_play.h"

#include <QAbstractScrollArea>
#include <QString>

#include <functional>

namespace tarvel {

/// A row for each element with bars for the times at which its timers show it, below a ruler of
/// seconds, and a line at the time that plays. Pressing and dragging choose a time. Rows are asked
/// for as they come into sight.
class TimeLine : public QAbstractScrollArea {
    Q_OBJECT

  public:
    /// Milliseconds that are shown.
    static constexpr PlayTime length = 30'000;

    struct Row {
        QString label;
        TimerValues timers;
    };

    explicit TimeLine(QWidget* parent = nullptr);

    void setRows(int count, std::function<Row(int)> row);
    /// Milliseconds since the screen was activated; beyond the shown ones an arrow stands at the
    /// end.
    void setTime(PlayTime time);
    [[nodiscard]] PlayTime time() const { return time_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Where a time is in the viewport, from its left edge.
    [[nodiscard]] int placeOf(PlayTime time) const;
    /// Where a row is in the viewport.
    [[nodiscard]] QRect rowRect(int row) const;

  signals:
    /// From the press on until the button is let go.
    void dragged(bool begins);
    void timeChosen(tarvel::PlayTime time);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    void measure();
    void showRange();
    void chooseAt(int x);
    void endDrag();
    void paintRuler(QPainter& painter, const QRect& dirty) const;
    void paintRow(QPainter& painter, int row, const QRect& dirty) const;
    void paintTime(QPainter& painter) const;
    [[nodiscard]] int rowHeight() const;
    [[nodiscard]] int rulerHeight() const;
    [[nodiscard]] int labelWidth() const;
    [[nodiscard]] int barWidth() const;

    int count_ = 0;
    std::function<Row(int)> row_;
    PlayTime time_ = 0;
    int endWidth_ = 0; // of the text at the end of the ruler
    bool isDragging_ = false;
};

} // namespace tarvel
