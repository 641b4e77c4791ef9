// Paints the selection marks and places them on what is selected.
#include "surface/selection_marks.h"

#include "document/element_kinds.h"
#include "editing/group_places.h"
#include "editing/hit_test.h"
#include "surface/group_marks.h"
#include "surface/mark_painting.h"
#include "surface/pic.h"
#include "surface/surface_geometry.h"
#include "widgets/qt_text.h"

#include <QAccessible>
#include <QLabel>
#include <QPainter>

#include <array>
#include <cmath>

namespace tarvel {

namespace {

constexpr int margin = markMargin;

} // namespace

// The outline of an element with its handles; a mark may reach over the edge of its element.
class SelectionBox : public QWidget {
  public:
    explicit SelectionBox(Pic& surface)
        : QWidget(&surface)
        , surface_(surface) {}

    /// Without handles what is selected beside it is sized along with it, by other handles.
    void show(const Element& element, bool withHandles) {
        element_ = element;
        withHandles_ = withHandles;
        place();
        update();
        raise();
        setVisible(true);
    }

    /// Where its element is at the surface's zoom.
    void place() {
        const ElementControl& control = element_.elementControl;
        // Places may be as far out as numbers go, windows may not.
        const QRectF skin =
            nearSurface(QRectF(control.left, control.top, std::max(control.width, 0.0F),
                               std::max(control.height, 0.0F)));
        const QRect near = surface_.mapping().toWidget(skin).toAlignedRect();
        setGeometry(near.adjusted(-margin, -margin, margin, margin));
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        // Around the element's pixels, whose own border shows inside it.
        const QRectF outline = QRectF(rect()).adjusted(margin - 1, margin - 1, -margin, -margin);
        paintOutline(painter, outline, element_.elementLocked ? lockedTones() : outlineTones(),
                     withHandles_ ? Qt::DashLine : Qt::SolidLine);
        constexpr std::array handles = {Handle::topLeft,    Handle::top,         Handle::topRight,
                                        Handle::right,      Handle::bottomRight, Handle::bottom,
                                        Handle::bottomLeft, Handle::left};
        for (const Handle handle : handles) {
            if (withHandles_ && hasHandle(element_, handle, surface_.mapping().scale())) {
                const HandleEdges edges = edgesOf(handle);
                const QPointF centre(outline.left() + (edges.x + 1) * outline.width() / 2,
                                     outline.top() + (edges.y + 1) * outline.height() / 2);
                const QPointF corner(std::round(centre.x()) - margin,
                                     std::round(centre.y()) - margin);
                paintHandle(painter, QRectF(corner, QSizeF(handleSide, handleSide)));
            }
        }
    }

  private:
    const Pic& surface_;
    Element element_;
    bool withHandles_ = true;
};

class LineEndMark : public QWidget {
  public:
    LineEndMark(Pic& surface, int number)
        : QWidget(&surface)
        , surface_(surface) {
        setObjectName(QStringLiteral("fraResize%1").arg(number));
        auto* label = new QLabel(this);
        label->setObjectName(QStringLiteral("lblResize%1").arg(number));
        label->setGeometry(0, 0, handleSide + 2, handleSide + 2);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        resize(handleSide + 2, handleSide + 2);
    }

    void showAt(SkinPoint point) {
        point_ = point;
        place();
        raise();
    }

    /// On the middle of the skin pixel that the end is.
    void place() {
        const QPointF centre(point_.x, point_.y);
        if (nearSurface(QRectF(centre, QSizeF())).topLeft() != centre) {
            setVisible(false); // too far out to be seen
            return;
        }
        constexpr QPointF middle(0.5, 0.5);
        const QPointF at = surface_.mapping().toWidget(centre + middle) - middle;
        move(static_cast<int>(std::lround(at.x())) - width() / 2,
             static_cast<int>(std::lround(at.y())) - height() / 2);
        setVisible(true);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        paintHandle(painter, rect());
    }

  private:
    const Pic& surface_;
    SkinPoint point_;
};

namespace {

template <class Mark> Mark* prepared(Mark* mark) {
    mark->setAttribute(Qt::WA_TransparentForMouseEvents);
    mark->setVisible(false);
    return mark;
}

} // namespace

SelectionMarks::SelectionMarks(Pic& surface)
    : QObject(&surface)
    , surface_(surface)
    , fraSel_(prepared(new SelectionBox(surface)))
    , fraResize1_(prepared(new LineEndMark(surface, 1)))
    , fraResize2_(prepared(new LineEndMark(surface, 2))) {
    fraSel_->setObjectName(QStringLiteral("fraSel"));
    group_ = new GroupMarks(surface);
    connect(&surface, &Pic::mappingChanged, this, &SelectionMarks::placeAnew);
}

void SelectionMarks::placeAnew() {
    fraSel_->place();
    for (LineEndMark* end : {fraResize1_, fraResize2_}) {
        if (!end->isHidden()) {
            end->place();
        }
    }
}

void SelectionMarks::setSel(const Element& element) {
    fraResize1_->setVisible(false);
    fraResize2_->setVisible(false);
    group_->setVisible(false);
    fraSel_->show(element, true);
}

void SelectionMarks::setSeveral(const SkinDocument& document, const std::vector<int>& ids) {
    hideSels();
    const Element& leading = document.element(ids.back());
    group_->show(startPlaces(document, ids), ids.back());
    if (!hasEnds(leading.elementControl)) {
        fraSel_->show(leading, false);
    } else if (!leading.elementLocked) {
        fraResize1_->showAt(handleCentre(leading.elementControl, Handle::firstEnd));
        fraResize2_->showAt(handleCentre(leading.elementControl, Handle::secondEnd));
    }
}

void SelectionMarks::setSelLine(const Element& element) {
    hideSels();
    if (element.elementLocked) {
        return; // its ends cannot be dragged
    }
    fraResize1_->showAt(handleCentre(element.elementControl, Handle::firstEnd));
    fraResize2_->showAt(handleCentre(element.elementControl, Handle::secondEnd));
}

void SelectionMarks::setCurrentSel(const Element& element) {
    if (hasEnds(element.elementControl)) {
        setSelLine(element);
    } else {
        setSel(element);
    }
}

void SelectionMarks::hideSels() {
    group_->setVisible(false);
    fraSel_->setVisible(false);
    fraResize1_->setVisible(false);
    fraResize2_->setVisible(false);
}

void SelectionMarks::describe(const std::string& words) {
    const QString text = qtText(words);
    if (surface_.accessibleDescription() == text) {
        return;
    }
    surface_.setAccessibleDescription(text);
    QAccessibleEvent event(&surface_, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

bool SelectionMarks::isBoxShown() const {
    return fraSel_->isVisibleTo(fraSel_->parentWidget());
}

} // namespace tarvel
