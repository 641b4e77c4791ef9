// The one way to ask the user something, so that tests can answer instead.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

class QWidget;

namespace tarvel {

/// Modal questions to the user. `owner` is the window that they stand over; it may be null. Each
/// call returns when the user has answered.
class Prompts {
  public:
    enum class Answer : std::uint8_t { Yes, No, Cancel };

    Prompts() = default;
    virtual ~Prompts() = default;
    Prompts(const Prompts&) = delete;
    Prompts& operator=(const Prompts&) = delete;

    /// An OK-only message; the text is plain.
    virtual void message(QWidget* owner, const QString& text) = 0;
    virtual Answer question(QWidget* owner, const QString& text) = 0;
    /// A question that is answered by Yes or No; true for Yes.
    virtual bool confirm(QWidget* owner, const QString& text) = 0;
    /// A line of text; empty when cancelled.
    virtual QString input(QWidget* owner, const QString& prompt) = 0;
    /// An existing folder; empty when cancelled.
    virtual QString folder(QWidget* owner, const QString& title) = 0;
    /// Existing files; `filter` reads "JPG|*.jpg|BMP|*.bmp", empty for all files. At most one
    /// unless `several`; none when cancelled.
    virtual QStringList files(QWidget* owner, const QString& filter, bool several) = 0;
    /// Nothing when cancelled.
    virtual std::optional<QColor> color(QWidget* owner, const QColor& initial) = 0;
    virtual std::optional<QFont> font(QWidget* owner, const QFont& initial) = 0;
};

} // namespace tarvel
