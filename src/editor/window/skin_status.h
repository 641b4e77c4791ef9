// What the status line says at its right: the skin, its folder, and whether something is unsaved.
#pragma once

#include "document/skin_document.h"

#include <QObject>
#include <QString>

class QLabel;
class QStatusBar;

namespace tarvel {

class PathLabel;

/// Puts two labels into the status line, of which the first takes at most half of it: what does not
/// fit is left out in the middle and told by the tool tip. The document is not owned and outlives
/// this.
class SkinStatus : public QObject, private DocumentObserver {
    Q_OBJECT

  public:
    SkinStatus(const SkinDocument& document, QStatusBar& line);

    /// Empty while no folder holds the skin.
    void setFolder(const QString& folder);
    void setUnsaved(bool unsaved);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void documentChanged(const DocumentChange& change) override;
    void showSkin();

    const SkinDocument& document_;
    QStatusBar& line_;
    PathLabel* lblSkin_;
    QLabel* lblUnsaved_;
    QString folder_;
    DocumentWatch watch_;
};

} // namespace tarvel
