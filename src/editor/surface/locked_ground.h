// Shows the locked elements of a screen as the flat ground under the others.
#pragma once

#include "document/skin_document.h"

#include <QObject>
#include <QTimer>

namespace tarvel {

class Pic;

/// Keeps the surface's flat ground in line with the document's locks. Owns neither; both outlive
/// it.
class LockedGround : public QObject, private DocumentObserver {
    Q_OBJECT

  public:
    LockedGround(const SkinDocument& document, Pic& pic);

    /// Up to this zoom, in per cent, the ground is one picture; larger ones would take more memory
    /// than they save time, and the locked elements are painted anew each time.
    static constexpr int largestFlatZoom = 200;

    /// Pictures changed: the ground is out of date.
    void picturesChanged() { documentChanged({DocumentChange::What::settings}); }

  private:
    void documentChanged(const DocumentChange& change) override;
    void refresh();

    const SkinDocument& document_;
    Pic& pic_;
    DocumentWatch watch_;
    int screen_ = -1;
    int locked_ = 0;
    QTimer later_; // gathers the changes of one command
};

} // namespace tarvel
