// What the three panels for an element's behaviour have in common: heading, OK, opening and
// closing.
#pragma once

#include "document/skin_document.h"
#include "panels/side_card.h"

#include <QString>

#include <string_view>

class QPushButton;
class QVBoxLayout;

namespace tarvel {

/// A panel that lies over the disabled window while it is open. It is hidden until open(), and
/// closes through its OK button only, or Enter; Escape does nothing. The document is not owned and
/// outlives the panel.
class BehaviourPanel : public SideCard {
    Q_OBJECT

  public:
    /// Shows the panel for the last of the elements; what it stores goes to all of them that it
    /// suits. Nothing happens for an id without an element.
    void open(const std::vector<int>& elementIds);
    void open(int elementId) { open(std::vector<int>{elementId}); }
    /// What the OK button does: takes what the panel shows into the elements and hides the panel.
    void ok();
    /// Whether OK would store something else than right after opening.
    [[nodiscard]] bool isChanged() const;
    /// Takes what the panel shows into the elements, and stays open; takeBack() undoes that.
    void storeNow();
    void takeBack();

  signals:
    /// The panel has stored what it shows and is hidden.
    void closed();

  protected:
    /// `step` is what taking the panel over does to the element, one of editing/step_names.h.
    BehaviourPanel(SkinDocument& document, std::string_view step, const QString& name,
                   const QString& heading, QWidget* parent);

    /// Fills the controls from the element.
    virtual void fill(const Element& element) = 0;
    /// Takes what the controls show into the element.
    virtual void store(Element& element) const = 0;
    /// Whether an element of another kind than that of the panel's own can take what it shows.
    [[nodiscard]] virtual bool suits(ElementKind /*kind*/) const { return true; }

    /// The panel's rows, below the heading.
    [[nodiscard]] QVBoxLayout& rows() { return *rows_; }
    /// Ends the rows with the OK button, which stays at the bottom of a taller panel.
    /// `deed` says what it does besides closing, in plain words.
    void addOk(const QString& name, const QString& deed);
    /// The control that has the focus after opening.
    void setFirstControl(QWidget* control) { firstControl_ = control; }

    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] bool hasElement() const;
    [[nodiscard]] int shownId() const { return elementIds_.empty() ? 0 : elementIds_.back(); }
    [[nodiscard]] Element stored() const;

    SkinDocument& document_;
    std::string_view step_;
    void storeToAll();

    std::vector<int> elementIds_; // the last one is shown
    Element untouched_;           // that one after an OK without a change
    std::vector<Element> before_; // all of them before storeNow()
    QVBoxLayout* column_;
    QVBoxLayout* rows_ = nullptr; // in it, what scrolls in a low window
    QPushButton* cmdOK_ = nullptr;
    QWidget* firstControl_ = nullptr;
};

} // namespace tarvel
