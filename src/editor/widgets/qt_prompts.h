// Prompts by Qt's own dialogs.
#pragma once

#include "widgets/prompts.h"

namespace tarvel {

class Remembered;

/// Folder and file choosers start in the folder used last: the one that is remembered, or without
/// something that remembers the one where the last chooser ended.
class QtPrompts : public Prompts {
  public:
    /// `remembered` is not owned and outlives the prompts.
    explicit QtPrompts(Remembered* remembered = nullptr)
        : remembered_(remembered) {}

    void message(QWidget* owner, const QString& text) override;
    Answer question(QWidget* owner, const QString& text) override;
    bool confirm(QWidget* owner, const QString& text) override;
    QString input(QWidget* owner, const QString& prompt) override;
    QString folder(QWidget* owner, const QString& title) override;
    QStringList files(QWidget* owner, const QString& filter, bool several) override;
    std::optional<QColor> color(QWidget* owner, const QColor& initial) override;
    std::optional<QFont> font(QWidget* owner, const QFont& initial) override;

  private:
    [[nodiscard]] QString lastFolder() const;
    void setLastFolder(const QString& folder);

    Remembered* remembered_;
    QString lastFolder_;
};

/// The filter "JPG|*.jpg|BMP|*.bmp" in Qt's form, "JPG (*.jpg);;BMP (*.bmp)".
[[nodiscard]] QString qtFilter(const QString& filter);

} // namespace tarvel
