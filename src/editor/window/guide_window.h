// The window of the user guide.
#pragma once

#include <QDialog>
#include <QUrl>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace tarvel {

class GuideView;

/// The guide with its contents on the left and a search above. Not modal, and a window of its own
/// that may lie beside the main one.
class GuideWindow : public QDialog {
    Q_OBJECT

  public:
    /// `open` gets addresses outside the guide.
    explicit GuideWindow(std::function<void(const QUrl&)> open, QWidget* parent = nullptr);

    /// Shows a chapter by the anchor of its heading. False when there is none.
    bool showChapter(const QString& anchor);
    [[nodiscard]] GuideView& view() { return *txtGuide_; }

    /// The guide's text, in Markdown.
    [[nodiscard]] static QString guideText();

  private:
    QLayout* makeSearch();
    void addKeys();
    void fillContents();
    void followView();
    void markChapter(const QString& anchor);
    void find(int step);
    void showFound();

    GuideView* txtGuide_;
    QTreeWidget* lstContents_;
    QLineEdit* txtFind_;
    QPushButton* cmdPrevious_;
    QPushButton* cmdNext_;
    QLabel* lblFound_;
};

} // namespace tarvel
