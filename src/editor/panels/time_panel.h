// The panel with the time line of a screen that plays.
#pragma once

#include "panels/side_card.h"
#include "panels/time_line.h"

namespace tarvel {

/// Hidden until it is shown.
class TimePanel : public SideCard {
    Q_OBJECT

  public:
    explicit TimePanel(QWidget* parent);

    [[nodiscard]] TimeLine& timeLine() { return *timeLine_; }

  private:
    TimeLine* timeLine_;
};

} // namespace tarvel
