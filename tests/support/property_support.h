// A property panel in a test: shown with a document of its own, and worked by mouse and keys.
#pragma once

#include "document/skin_document.h"
#include "panels/property_panel.h"
#include "support/dialog_support.h"
#include "support/scripted_prompts.h"
#include "surface/picture_cache.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QStyleHints>

#include <string>
#include <utility>

namespace tarvel::test {

inline Element elementOfControl(ElementKind kind, ControlKind control) {
    Element element;
    element.elementKind = kind;
    element.elementControl.kind = control;
    return element;
}

/// An element of the kind as a new one is, an image with a picture.
inline Element elementOfKind(ElementKind kind) {
    switch (kind) {
    case ElementKind::Box:
        return elementOfControl(kind, ControlKind::box);
    case ElementKind::Line:
        return elementOfControl(kind, ControlKind::lin);
    case ElementKind::Image:
        return elementOfControl(kind, ControlKind::img);
    case ElementKind::Text:
        return elementOfControl(kind, ControlKind::txt);
    case ElementKind::Menu:
        break;
    }
    return elementOfControl(kind, ControlKind::qor);
}

/// A text that is fixed, or else the name of a source.
inline Element textElement(std::string text, bool constant) {
    Element element = elementOfKind(ElementKind::Text);
    element.elementControl.caption = std::move(text);
    element.elementControl.textColor = makeColor(255, 0, 0);
    element.textIsConstant = constant;
    return element;
}

/// A panel as wide as the main window's column.
class ShownPanel {
  public:
    explicit ShownPanel(SkinDocument skin = {})
        : document(std::move(skin)) {
        panel.resize(400, panel.sizeHint().height());
        if (!open(panel)) {
            qFatal("the panel does not take keys");
        }
    }

    template <class Control> Control& find(const QString& name) {
        return control<Control>(panel, name);
    }
    bool sees(const QString& name) { return find<QWidget>(name).isVisible(); }

  private:
    PictureCache pictures_;

  public:
    SkinDocument document;
    ScriptedPrompts prompts;
    PropertyPanel panel{document, prompts, pictures_};
};

/// Chooses a row of a drop-down list by keys.
inline void chooseEntry(QComboBox& list, int row) {
    list.setFocus();
    while (list.currentIndex() != row) {
        const int before = list.currentIndex();
        QTest::keyClick(&list, before < row ? Qt::Key_Down : Qt::Key_Up);
        if (list.currentIndex() == before) {
            qFatal("no row %d in %s", row, qPrintable(list.objectName()));
        }
    }
}

/// Chooses a row in the opened list of a drop-down list, where it may be the current one already.
inline void chooseInPopup(QComboBox& list, int row) {
    // A click within the time of a double click after opening is no choice.
    QStyleHints& hints = *QGuiApplication::styleHints();
    const int before = hints.mouseDoubleClickInterval();
    hints.setMouseDoubleClickInterval(0);
    list.showPopup();
    settle();
    hints.setMouseDoubleClickInterval(before);
    QAbstractItemView* view = list.view();
    const QModelIndex index = list.model()->index(row, 0);
    view->scrollTo(index);
    const QPoint point = view->visualRect(index).center();
    QTest::mouseMove(view->viewport(), point);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, point);
}

} // namespace tarvel::test
