// The text of the skin in a window for reading.
#pragma once

#include <QDialog>

namespace tarvel {

/// Shows the text as it would be saved, in a font of fixed width. Not modal.
class XmlWindow : public QDialog {
    Q_OBJECT

  public:
    explicit XmlWindow(const QString& text, QWidget* parent = nullptr);
};

} // namespace tarvel
