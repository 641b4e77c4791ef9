// The brief curtain over the surface while the property panels are switched.
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace tarvel {

class Pic;

class SurfaceCover : public QObject {
    Q_OBJECT

  public:
    /// The surface is not owned; the cover belongs to it and goes with it.
    explicit SurfaceCover(Pic& pic);

    /// Shows the cover for 200 ms, with the cross as mouse pointer from now on, and then calls
    /// `then`. Returns at once. Covering again before the time is over starts it anew and forgets
    /// the earlier `then`, so that of several tools chosen in a hurry the last one counts.
    void cover(std::function<void()> then = {});

    /// Calls `then` at once, if it is still to be called. The cover stays for the rest of its time.
    void hurry();

    /// Hides the cover at once; what is to happen after the time still does.
    void uncover();

  signals:
    /// The selection marks are to be hidden.
    void aboutToCover();

  private:
    void timeOver();

    Pic& pic_;
    QTimer timer_;
    std::function<void()> then_;
};

} // namespace tarvel
