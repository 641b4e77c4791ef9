// Opens the windows of the menu "Help", and the guide by F1 in dialogs.
#pragma once

#include <QObject>
#include <QPair>
#include <QPointer>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <vector>

class QDialog;
class QWidget;

namespace tarvel {

class GuideWindow;

/// The guide can be read beside the main window and above a dialog that lets nothing else be used.
class HelpWindows : public QObject {
    Q_OBJECT

  public:
    /// `open` gets the addresses of links that lead out of the guide.
    HelpWindows(QWidget& window, std::function<void(const QUrl&)> open);
    ~HelpWindows() override;

    /// Shows the guide, at a chapter by its anchor or where it was.
    void showGuide(const QString& chapter = {});
    void showKeys();
    void showAbout();

    /// Windows and panels by their object names, each with the anchor of its chapter.
    [[nodiscard]] static const std::vector<QPair<QString, QString>>& chapters();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void standAboveDialog();

    QWidget& window_;
    std::function<void(const QUrl&)> open_;
    std::unique_ptr<GuideWindow> guide_; // made when it is wanted
    QPointer<QDialog> keys_;
    QPointer<QDialog> about_;
};

} // namespace tarvel
