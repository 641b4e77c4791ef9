// The time line as screen readers know it.
#pragma once

namespace tarvel {

class TimeLine;

/// Time lines are sliders of seconds from now on.
void beSliders();

/// Says the time that a hand has set. One that passes is not told: it would talk all the time.
void tellTime(TimeLine& line);

} // namespace tarvel
