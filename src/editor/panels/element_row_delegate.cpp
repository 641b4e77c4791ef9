// Paints the rows of the element lists.
#include "panels/element_row_delegate.h"

#include "panels/resource_looks.h"
#include "surface/element_looks.h"
#include "surface/surface_pass.h"
#include "widgets/icons.h"
#include "widgets/qt_text.h"
#include "widgets/style/contrast.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

constexpr int gap = 4; // pixels

const QIcon& kindIcon(const ElementControl& control) {
    static const QIcon video = icon(IconName::video);
    static const auto kinds = [] {
        std::array<QIcon, kindLooks.size()> icons;
        std::transform(kindLooks.begin(), kindLooks.end(), icons.begin(),
                       [](const KindLook* look) { return icon(look->tool.icon); });
        return icons;
    }();
    return control.kind == ControlKind::vid
               ? video
               : kinds.at(static_cast<std::size_t>(rulesOf(control.kind).kind) - 1);
}

// The colour that the element is seen by.
QColor lookColor(const Element& element) {
    const ElementControl& control = element.elementControl;
    switch (control.kind) {
    case ControlKind::txt:
        return withOpacity(control.textColor, element.elementAlpha);
    case ControlKind::qor: {
        const std::string& title = element.menuSettings->unselectedTitleColor;
        return qtColor(static_cast<ColorNumber>(toInt32(val(title))));
    }
    case ControlKind::lin:
        return qtColor(control.borderColor);
    default:
        return control.fillStyle == FillStyle::solid
                   ? withOpacity(control.fillColor, element.elementAlpha)
                   : QColor(Qt::transparent);
    }
}

// A square in the colour, on a checkerboard where it is not opaque. A box without a fill has its
// border's colour around the checkerboard.
void paintSwatch(QPainter& painter, const QRect& place, const Element& element,
                 const QColor& edge) {
    constexpr int side = 14;
    constexpr int square = 4;
    QRect swatch(0, 0, side, side);
    swatch.moveCenter(place.center());
    const QColor color = lookColor(element);
    const ElementControl& control = element.elementControl;
    painter.fillRect(swatch, edge); // can be told from the row, whatever the colour
    const QRect inside = swatch.adjusted(1, 1, -1, -1);
    if (color.alpha() < 255) {
        paintCheckerboard(painter, inside, square);
    }
    painter.fillRect(inside, color);
    if (control.kind == ControlKind::box && control.borderStyle == BorderStyle::solid) {
        painter.setPen(QPen(qtColor(control.borderColor), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(inside.adjusted(1, 1, -1, -1));
    }
}

QColor rowColor(const QStyleOptionViewItem& row, QPalette::ColorRole idle) {
    const bool isSelected = row.state.testFlag(QStyle::State_Selected);
    const auto group = !row.state.testFlag(QStyle::State_Enabled) ? QPalette::Disabled
                       : row.state.testFlag(QStyle::State_Active) ? QPalette::Active
                                                                  : QPalette::Inactive;
    return row.palette.color(group, isSelected ? QPalette::HighlightedText : idle);
}

QIcon::Mode modeOf(const QStyleOptionViewItem& row) {
    if (!row.state.testFlag(QStyle::State_Enabled)) {
        return QIcon::Disabled;
    }
    return row.state.testFlag(QStyle::State_Selected) ? QIcon::Selected : QIcon::Normal;
}

void paintMark(QPainter& painter, const QStyleOptionViewItem& row) {
    const bool isSelected = row.state.testFlag(QStyle::State_Selected);
    const QColor accent = row.palette.color(QPalette::Highlight);
    if (!isSelected) {
        painter.fillRect(row.rect, mixed(row.palette.color(QPalette::Base), accent, 0.15));
    }
    painter.setPen(QPen(isSelected ? row.palette.color(QPalette::HighlightedText) : accent, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(row.rect).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace

ElementRowDelegate::ElementRowDelegate(const SkinDocument& document, PictureCache& pictures,
                                       QObject* parent)
    : QStyledItemDelegate(parent)
    , document_(document)
    , thumbnails_(pictures) {}

ElementRowDelegate::Places ElementRowDelegate::placesIn(const QRect& row, bool isLocked) {
    const auto square = [&](int left, int width) {
        return QRect(left, row.top() + (row.height() - smallIcon) / 2, width, smallIcon);
    };
    Places places;
    places.kind = square(row.left() + gap, smallIcon);
    places.look = square(places.kind.right() + 1 + gap, ElementThumbnails::size.width());
    const int textLeft = places.look.right() + 1 + gap;
    int textEnd = row.right() + 1 - gap;
    if (isLocked) {
        places.lock = square(textEnd - smallIcon, smallIcon);
        textEnd = places.lock.left() - gap;
    }
    places.text = QRect(textLeft, row.top(), std::max(0, textEnd - textLeft), row.height());
    return places;
}

void ElementRowDelegate::paintLook(QPainter& painter, const QRect& place, const Element& element,
                                   const QColor& edge) const {
    switch (element.elementControl.kind) {
    case ControlKind::img:
    case ControlKind::png:
    case ControlKind::vid:
        painter.drawImage(
            place.topLeft(),
            thumbnails_.thumbnail(element.elementControl, painter.device()->devicePixelRatioF()));
        break;
    default:
        paintSwatch(painter, place, element, edge);
        break;
    }
}

void ElementRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QString text = std::exchange(row.text, {}); // the style paints the ground
    const int id = index.data(Qt::UserRole).toInt();
    const Element& element = document_.element(id);
    const QStyle& style = *(row.widget == nullptr ? QApplication::style() : row.widget->style());
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    painter->save();
    if (id == marked_) {
        paintMark(*painter, row);
    }
    const Places places = placesIn(row.rect, element.elementLocked);
    kindIcon(element.elementControl).paint(painter, places.kind, Qt::AlignCenter, modeOf(row));
    paintLook(*painter, places.look, element, rowColor(row, QPalette::Mid));
    if (element.elementLocked) {
        static const QIcon lock = icon(IconName::lock);
        lock.paint(painter, places.lock, Qt::AlignCenter, modeOf(row));
    }
    painter->setFont(row.font);
    painter->setPen(rowColor(row, QPalette::Text));
    painter->drawText(places.text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      row.fontMetrics.elidedText(text, row.textElideMode, places.text.width()));
    painter->restore();
}

QSize ElementRowDelegate::sizeHint(const QStyleOptionViewItem& option,
                                   const QModelIndex& /*index*/) const {
    return {0, std::max(option.fontMetrics.height(), smallIcon) + gap};
}

} // namespace tarvel
