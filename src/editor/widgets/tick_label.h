// A line of text that changes many times a second.
#pragma once

#include <QLabel>

namespace tarvel {

/// Always as large as a sample of its text: what stands around it is not laid out anew whenever it
/// changes.
class TickLabel : public QLabel {
    Q_OBJECT

  public:
    explicit TickLabel(const QString& sample, QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void takeSize();

    QString sample_;
};

} // namespace tarvel
