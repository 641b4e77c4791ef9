// A line of text that changes many times a second.
#pragma once

#include <QWidget>

namespace tarvel {

/// Draws its text without asking for another place or size when it changes, as a label does: what
/// stands around it is not laid out anew. Always as wide as a sample of its text.
class TickLabel : public QWidget {
    Q_OBJECT

  public:
    explicit TickLabel(const QString& sample, QWidget* parent = nullptr);

    void setText(const QString& text);
    [[nodiscard]] const QString& text() const { return text_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    QString sample_;
    QString text_;
};

} // namespace tarvel
