// What each key does, by the place where it works.
#include "window/key_table.h"

namespace tarvel {

namespace {

std::vector<KeyGroup> keysOfTheWindow() {
    return {{"Everywhere in the main window",
             {{"F1", "User Guide; in a dialog or an open panel its own chapter", "mnuGuide"},
              {"Alt", "the menu bar, without opening a menu", {}},
              {"F10", "opens the first menu", {}},
              {"Alt+letter", "the menu or button with that letter underlined", {}},
              {"F6", "the next part of the window: surface, list, panel, tools", {}},
              {"Shift+F6", "the part before", {}},
              {"Tab", "the next control; on the surface the next element", {}},
              {"Shift+Tab", "the control or element before", {}},
              {"Delete", "Delete the selected elements, also from a text field", {}},
              {"Escape", "ends a drag, lets a tool go, or selects nothing", {}},
              {"Menu or Shift+F10", "the menu of the selected element", {}}}},
            {"Skin",
             {{"Ctrl+N", "New Window", "mnuNewWindow"},
              {"Ctrl+O", "Load a skin in addition to what is open", "mnuLoad"},
              {"Ctrl+S", "Save Again into the same folder", "mnuSaveAgain"},
              {"Ctrl+Shift+S", "Save into a folder to be chosen", "mnuSave"},
              {"F5", "Play the screen that is shown", "mnuPlay"},
              {"Shift+F5", "Play Skin from its start", "mnuPlaySkin"}}},
            {"Edit",
             {{"Ctrl+Z", "Undo", "mnuUndo"},
              {"Ctrl+Shift+Z or Ctrl+Y", "Redo", "mnuRedo"},
              {"Ctrl+X", "Cut", "mnuCut"},
              {"Ctrl+C", "Copy", "mnuCopy"},
              {"Ctrl+V", "Paste", "mnuPaste"},
              {"Ctrl+D", "Duplicate", "mnuDuplicate"},
              {"Ctrl+A", "Select All", "mnuSelectAll"}}},
            {"Zoom",
             {{"Ctrl++ or Ctrl+=", "Zoom In; also Ctrl and the wheel", "mnuZoomIn"},
              {"Ctrl+-", "Zoom Out", "mnuZoomOut"},
              {"Ctrl+0", "100 %", "mnuZoomActual"},
              {"Ctrl+9", "Fit the screen into its room", "mnuZoomFit"},
              {"Space while dragging",
               "moves the screen in its room, as the middle button does",
               {}}}}};
}

KeyGroup keysOfPlaying() {
    return {"While a screen plays",
            {{"Escape or F5", "ends it", {}},
             {"Space", "holds the time, or lets it go on", {}},
             {"Left and Right", "a tenth of a second back and on", {}},
             {"Shift+Left and Shift+Right", "a second back and on", {}},
             {"Up and Down", "the item before and the next one in the list of games", {}},
             {"+ or =", "twice as quick", {}},
             {"-", "half as quick", {}},
             {"Tab", "the controls of the strip below the screen", {}},
             {"Any other key", "is one of the console: puts the saver off, or ends it", {}}}};
}

std::vector<KeyGroup> keysOfItsParts() {
    return {{"Surface",
             {{"Enter", "with a tool chosen: an element in the middle of the screen", {}},
              {"Arrow keys", "move what is selected by 1 pixel", {}},
              {"Shift+Arrow keys", "by 9 pixels", {}},
              {"Ctrl+Arrow keys", "by 17 pixels", {}},
              {"Ctrl+Shift+Arrow keys", "by 25 pixels", {}},
              {"Alt+Arrow keys", "by 33 pixels", {}},
              {"Ctrl+Click", "adds an element to the selection, or takes it away", {}},
              {"Shift while sizing", "keeps the proportions", {}},
              {"Ctrl while dragging", "suspends snapping", {}},
              {"Alt while dragging", "moves a copy", {}}}},
            {"Tools",
             {{"Space", "chooses a tool, or lets it go", {}},
              {"Shift+Space", "keeps a tool for several elements", {}}}},
            keysOfPlaying(),
            {"Lists",
             {{"Up and Down", "the row before and the next one", {}},
              {"Home and End", "the first and the last row", {}},
              {"Page Up and Page Down", "a page of rows up and down", {}},
              {"Shift+Up and Shift+Down", "in the list of elements: several rows", {}},
              {"Letters", "in the list of elements: the next row that holds them", {}},
              {"F2", "in the resources dialog: renames the resource", {}},
              {"Space", "in the list of music: plays the file", {}}}},
            {"Panels and dialogs",
             {{"Enter", "OK; in a field under POSITION: takes what was typed", {}},
              {"Escape", "closes a dialog as OK does; in a field: takes back what was typed", {}}}},
            {"User guide",
             {{"Ctrl+F", "finds a text", {}},
              {"F3 or Enter", "the next place", {}},
              {"Shift+F3", "the place before", {}},
              {"Ctrl++", "larger text; also Ctrl and the wheel", {}},
              {"Ctrl+-", "smaller text", {}},
              {"Ctrl+0", "the usual size", {}}}}};
}

} // namespace

const std::vector<KeyGroup>& keyTable() {
    static const std::vector<KeyGroup> table = [] {
        std::vector<KeyGroup> all = keysOfTheWindow();
        const std::vector<KeyGroup> parts = keysOfItsParts();
        all.insert(all.end(), parts.begin(), parts.end());
        return all;
    }();
    return table;
}

QString keyPage() {
    QString page = QStringLiteral("<table width=\"100%\" cellpadding=\"3\">");
    for (const KeyGroup& group : keyTable()) {
        page += QStringLiteral("<tr><td colspan=\"2\"><h3>%1</h3></td></tr>")
                    .arg(group.where.toHtmlEscaped());
        for (const KeyRow& row : group.rows) {
            page += QStringLiteral("<tr><td width=\"38%\"><b>%1</b></td><td>%2</td></tr>")
                        .arg(row.keys.toHtmlEscaped(), row.deed.toHtmlEscaped());
        }
    }
    return page + QStringLiteral("</table>");
}

} // namespace tarvel
