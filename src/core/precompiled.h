// Headers that most sources of the core include, compiled once. Sources still include what they
// use.
#pragma once

#include <algorithm> // IWYU pragma: keep
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
