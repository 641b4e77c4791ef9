// Files that the user has chosen or dropped, and that a skin can hold.
#pragma once

#include <QStringList>

class QWidget;

namespace tarvel {

class Prompts;

/// The files that can be part of a skin, in their order. What keeps the others from it is told in
/// one message over `owner`, after the event at hand: a drop must not wait for an answer.
[[nodiscard]] QStringList usableFiles(const QStringList& files, Prompts& prompts, QWidget* owner);

} // namespace tarvel
