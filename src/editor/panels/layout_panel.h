// The panel "CURRENT SCREEN": one option button for each layout screen.
#pragma once

#include "document/layout_screens.h"

#include <QGroupBox>

#include <array>

class QLabel;
class QRadioButton;

namespace tarvel {

/// Follows the document, which is not owned and outlives the panel.
class LayoutPanel : public QGroupBox, private DocumentObserver {
    Q_OBJECT

  public:
    explicit LayoutPanel(const SkinDocument& document, QWidget* parent = nullptr);

    /// Index of the checked button.
    [[nodiscard]] int current() const;
    /// Draws the buttons of the screens that hold elements bold.
    void setLayoutBolds();

  signals:
    /// The user chose a screen.
    void screenClicked(int screen);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void colorNotes();
    void documentChanged(const DocumentChange& change) override;
    void setCurrent();

    const SkinDocument& document_;
    std::array<QRadioButton*, screenCount> optScreen_{};
    std::vector<QLabel*> notes_;
    DocumentWatch watch_;
};

} // namespace tarvel
