// Cut, Copy, Paste, Duplicate and Select All of the menu "Edit".
#pragma once

#include "document/element_place.h"
#include "editing/panel_values.h"
#include "skinfile/clipboard.h"
#include "window/command_watch.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <functional>

class QAction;
class QMimeData;

namespace tarvel {

class PictureCache;

/// Connects the entries and enables them for what can be done. Locked elements can be copied and
/// duplicated, but neither cut nor selected by Select All. In a text field the keys are the
/// field's, Duplicate's too, for which it has no use. What it is given is not owned and outlives
/// it.
class ClipboardCommands : public QObject {
    Q_OBJECT

  public:
    struct Entries {
        QAction& cut;
        QAction& copy;
        QAction& paste;
        QAction& duplicate;
        QAction& deleteSelected; ///< only enabled and disabled here
        QAction& selectAll;
    };
    struct Parts {
        SkinDocument& document;
        Selection& selection;
        WindowGate& gate;
        PictureCache& pictures;
        Entries entries;
        std::function<PanelValues()> panelValues;
        /// The folder of the skin, where relative paths of typed elements lead; empty for none.
        std::function<QString()> skinFolder;
    };

    explicit ClipboardCommands(const Parts& parts);

  signals:
    /// One line on how a command went, for the status line.
    void told(const QString& text);
    /// A file was pasted, which is to be dealt with as one that was dropped.
    void filePasted(const QString& file);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// How often the same content was put onto each screen; each time is a shift.
    struct Pasted {
        QByteArray content;
        std::array<int, screenCount> times{};
    };

    void refresh();
    void cut();
    void copy();
    void paste();
    void duplicate();
    void selectAll();

    void offer(const ClipboardContent& content);
    [[nodiscard]] bool pasteElementBytes(const QMimeData& data);
    [[nodiscard]] bool pasteElementText(const QMimeData& data);
    [[nodiscard]] bool pasteFile(const QMimeData& data);
    [[nodiscard]] bool pastePicture(const QMimeData& data);
    [[nodiscard]] bool pasteText(const QMimeData& data);
    void put(const ClipboardContent& content, const QByteArray& source);
    [[nodiscard]] SkinPoint nextShift(const QByteArray& source);

    Parts parts_;
    Pasted pasted_;
    CommandWatch watch_;
};

} // namespace tarvel
