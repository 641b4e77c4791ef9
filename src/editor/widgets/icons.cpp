// Renders the drawings with the palette's colours in place of their own.
#include "widgets/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <array>

namespace tarvel {

namespace {

// The colours of the drawings.
constexpr QByteArrayView drawnText("#202428");
constexpr QByteArrayView drawnAccent("#1a66c2");

constexpr std::array<const char*, iconCount> files = {"box",
                                                      "line",
                                                      "image",
                                                      "video",
                                                      "text",
                                                      "menu",
                                                      "lock",
                                                      "undo",
                                                      "redo",
                                                      "cut",
                                                      "copy",
                                                      "paste",
                                                      "duplicate",
                                                      "delete",
                                                      "align-left",
                                                      "align-centre",
                                                      "align-right",
                                                      "align-top",
                                                      "align-middle",
                                                      "align-bottom",
                                                      "distribute-across",
                                                      "distribute-down",
                                                      "bring-to-front",
                                                      "send-to-back",
                                                      "bring-forward",
                                                      "send-backward",
                                                      "save",
                                                      "open",
                                                      "play",
                                                      "stop",
                                                      "hold",
                                                      "step-back",
                                                      "step-on",
                                                      "holds",
                                                      "holds-not",
                                                      "add",
                                                      "remove",
                                                      "rename",
                                                      "replace",
                                                      "locate",
                                                      "zoom-in",
                                                      "zoom-out",
                                                      "zoom-fit",
                                                      "error",
                                                      "warning",
                                                      "note",
                                                      "help"};

struct Inks {
    QColor text;
    QColor accent;
};

Inks inksOf(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled: {
        const QColor faint = palette.color(QPalette::Disabled, QPalette::WindowText);
        return {faint, faint};
    }
    case QIcon::Selected: {
        const QColor onAccent = palette.color(QPalette::HighlightedText);
        return {onAccent, onAccent};
    }
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return {palette.color(QPalette::WindowText), palette.color(QPalette::Highlight)};
}

// The grid of which the pixels are a multiple; that of 16 where neither is.
int gridFor(int side) {
    return side % toolIcon == 0 ? toolIcon : smallIcon;
}

QByteArray drawingOf(const QString& name, int grid, const Inks& inks) {
    QFile file(QStringLiteral(":/tarvel/icons/%1/%2.svg").arg(grid).arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray drawing = file.readAll();
    drawing.replace(drawnText, inks.text.name().toLatin1());
    drawing.replace(drawnAccent, inks.accent.name().toLatin1());
    return drawing;
}

QPixmap rendered(const QString& name, QSize size, const Inks& inks) {
    const int side = std::min(size.width(), size.height());
    const QString key = QStringLiteral("tarvel/%1/%2/%3/%4")
                            .arg(name)
                            .arg(side)
                            .arg(inks.text.name(), inks.accent.name());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) {
        return pixmap;
    }
    pixmap = QPixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(drawingOf(name, gridFor(side), inks)).render(&painter);
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

class IconEngine : public QIconEngine {
  public:
    explicit IconEngine(QString name)
        : name_(std::move(name)) {}

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
        return size.isEmpty() ? QPixmap() : rendered(name_, size, inksOf(mode));
    }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const double ratio = painter->device()->devicePixelRatioF();
        QPixmap shown = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        shown.setDevicePixelRatio(ratio);
        const QSizeF size = shown.deviceIndependentSize();
        painter->drawPixmap(QPointF(rect.x() + (rect.width() - size.width()) / 2,
                                    rect.y() + (rect.height() - size.height()) / 2),
                            shown);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new IconEngine(name_); }
    [[nodiscard]] QString key() const override { return QStringLiteral("tarvel"); }
    QString iconName() override { return name_; }
    bool isNull() override { return false; }

  private:
    QString name_;
};

// Not every desktop asks for a window's icon, and reading it takes longer than any panel.
class ProgramIconEngine : public QIconEngine {
  public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return picture().pixmap(size, mode, state);
    }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        picture().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
        return picture().availableSizes(mode, state);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new ProgramIconEngine; }
    bool isNull() override { return false; }

  private:
    const QIcon& picture() {
        if (icon_.isNull()) {
            icon_ = QIcon(QStringLiteral(":/tarvel/tarvel.png"));
        }
        return icon_;
    }

    QIcon icon_;
};

} // namespace

QIcon programIcon() {
    return QIcon(new ProgramIconEngine); // NOLINT: the icon owns it
}

QString iconFile(IconName name) {
    return QLatin1String(files.at(static_cast<std::size_t>(name)));
}

QIcon icon(IconName name) {
    return QIcon(new IconEngine(iconFile(name))); // NOLINT: the icon owns it
}

} // namespace tarvel
