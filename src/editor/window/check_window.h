// The window with what is worth knowing about the skin that is open.
#pragma once

#include "skinfile/document_check.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <vector>

class QLabel;
class QListWidget;

namespace tarvel {

class EmptyHint;

/// Lists the findings of the last check, and says when the skin is another one since. Not modal.
/// The document is not owned and outlives it.
class CheckWindow : public QDialog, private DocumentObserver {
    Q_OBJECT

  public:
    /// `folder` tells the skin's folder; "" for none.
    CheckWindow(const SkinDocument& document, std::function<QString()> folder, QWidget* parent);

    /// Checks the document as it is now.
    void check();

  signals:
    /// Somebody wants to see what a finding is about.
    void chosen(const tarvel::Finding& finding);

  private:
    void documentChanged(const DocumentChange& change) override;
    void choose(int row);

    const SkinDocument& document_;
    std::function<QString()> folder_;
    std::vector<Finding> findings_;
    QLabel* lblResult_;
    QLabel* lblStale_;
    QListWidget* lstFindings_;
    EmptyHint* hint_;
    DocumentWatch watch_;
};

} // namespace tarvel
