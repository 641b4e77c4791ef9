// Headers that most sources of the editor include, compiled once. Sources still include what they
// use.
#pragma once

#include <QtGui>     // IWYU pragma: keep
#include <QtWidgets> // IWYU pragma: keep

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
