// The text of the user guide as it is read: chapters, pictures, links, search.
#pragma once

#include <QMap>
#include <QPixmap>
#include <QTextBrowser>

#include <vector>

namespace tarvel {

/// Shows a text in Markdown. Pictures are never wider than the view; links to headings of the text
/// lead there, all others are told. Names of pictures are those of the resources below `folder`.
class GuideView : public QTextBrowser {
    Q_OBJECT

  public:
    struct Heading {
        QString text;
        QString anchor; ///< as in links: lower case, dashes for blanks
        int level;      ///< 1 the title
        int block;      ///< of the document
    };

    static constexpr int smallestZoom = 50; ///< percent
    static constexpr int largestZoom = 300;

    GuideView(QString markdown, QString folder, QWidget* parent = nullptr);

    [[nodiscard]] const std::vector<Heading>& headings() const { return headings_; }
    /// The heading of what stands at the top of the view, by its place in headings(); -1 above all.
    [[nodiscard]] int shownHeading() const;
    /// Brings a heading to the top. False when there is none of that anchor.
    bool showHeading(const QString& anchor);

    /// Marks every place that holds the text, whatever its case, and shows the first one from where
    /// the reader is; an empty text marks nothing.
    void search(const QString& text);
    /// Shows the next place, after the last the first again; -1 goes back.
    void showMatch(int step);
    /// How many places were found, and which one is shown, counted from 1; 0 for none.
    [[nodiscard]] int matches() const { return static_cast<int>(matches_.size()); }
    [[nodiscard]] int shownMatch() const { return shownMatch_ + 1; }

    /// Percent of the usual size of the text, within smallestZoom and largestZoom.
    void setZoom(int percent);
    [[nodiscard]] int zoom() const { return zoom_; }

  signals:
    /// A link that leads out of the guide was chosen.
    void linkChosen(const QUrl& address);
    /// Another heading stands at the top, maybe.
    void scrolled();

  protected:
    [[nodiscard]] QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void render();
    void noteHeadings();
    void styleText();
    void fitPictures();
    void layOutWhole();
    [[nodiscard]] QPixmap pictureOf(const QString& name);
    void followLink(const QUrl& link);
    void goToMatch();
    void markMatches();
    void scrollTo(int block);

    QString markdown_;
    QString folder_;
    std::vector<Heading> headings_;
    std::vector<QTextCursor> matches_;
    QMap<QString, QPixmap> pictures_;
    QString searched_;
    int shownMatch_ = -1;
    int zoom_ = 100;
    double plainSize_; // points
    bool rendering_ = false;
};

} // namespace tarvel
