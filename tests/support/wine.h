// Whether a test of Windows runs under Wine, which lacks some of what Windows does.
#pragma once

namespace tarvel::test {

[[nodiscard]] bool isWine();

} // namespace tarvel::test
