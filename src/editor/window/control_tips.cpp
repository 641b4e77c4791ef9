// The table of the tool tips.
#include "window/control_tips.h"

#include "widgets/tool_tips.h"

#include <array>

namespace tarvel {

namespace {

constexpr std::array tips = {
    ControlTip{"optScreen", "Show this screen and its elements. Bold: it has elements."},
    ControlTip{"lst",
               "The elements of the screen, the backmost first.\nDrag rows to another place; "
               "letters find a row; Delete deletes the selected ones."},
    ControlTip{"cmdModifier", "Open this behavior of the selected element. Bold: it has one."},
    ControlTip{"cmdStop", "Stop the videos of this screen and the preview"},
    ControlTip{"lColor", "Choose the color of the border, or of the line"},
    ControlTip{"fColor", "Choose the color of the fill"},
    ControlTip{"cmdClearL", "Leave the box without a border"},
    ControlTip{"cmdClearF", "Leave the box without a fill, so that what is behind it shows"},
    ControlTip{"txtAlpha", "0 cannot be seen, 100 hides what is behind it"},
    ControlTip{"txtText", "A text of the dashboard, which changes with it, or one of your own"},
    ControlTip{"cmdFont", "Choose the font that the editor shows the text in"},
    ControlTip{"lstR", "The picture or video that the element shows"},
    ControlTip{"cmdAddRes", "Add pictures and videos to the skin, and look after those it has"},
    ControlTip{"chkThumbVis", "Show a small picture beside each entry"},
    ControlTip{"chkSmoothScroll", "Let the entries glide rather than jump"},
    ControlTip{"chkSelGlow", "Let the selected entry glow"},
    ControlTip{"chkShowDesc", "Show the description of each entry"},
    ControlTip{"cmbTitleAlign", "Where the titles stand in their lines"},
    ControlTip{"cmbDescAlign", "Where the descriptions stand in their lines"},
    ControlTip{"colSelTitle", "Choose the color of the selected entry's title"},
    ControlTip{"colUnselTitle", "Choose the color of the other titles"},
    ControlTip{"colSelDesc", "Choose the color of the selected entry's description"},
    ControlTip{"colUnselDesc", "Choose the color of the other descriptions"},
    ControlTip{"txtScrollFactor", "How fast the entries glide"},
    ControlTip{"txtNumItems", "How many entries are in sight"},
    ControlTip{"lstMods", "What the modifier changes; \"None\" takes it away"},
    ControlTip{"lstTargets", "What the modifier follows"},
    ControlTip{"txtRangeX", "The first value of the range"},
    ControlTip{"txtRangeY", "The second value of the range"},
    ControlTip{"txtBoundsL", "How far to the left it may go"},
    ControlTip{"txtBoundsT", "How far up it may go"},
    ControlTip{"txtBoundsR", "How far to the right it may go"},
    ControlTip{"txtBoundsB", "How far down it may go"},
    ControlTip{"cmdModifierOK", "Store the modifier in the element and close the panel"},
    ControlTip{"cmdTimersOK", "Store the timers in the element and close the panel"},
    ControlTip{"cmdConditionOK", "Store the condition in the element and close the panel"},
    ControlTip{"chkColr", "Whether the modifier changes this part of the color"},
    ControlTip{"txtTimer", "In milliseconds; empty for none"},
    ControlTip{"lstCond", "The element shows only while this holds"},
    ControlTip{"txtGrid", "The distance of the grid's lines, in pixels of the skin"},
    ControlTip{"optCustom", "Add a picture or a video of your own"},
    ControlTip{"optCustom2", "Add a picture or a video of your own"},
    ControlTip{"optPreset2", "Add something that the dashboard supplies"},
    ControlTip{"optPreset", "Add something that the dashboard supplies"},
    ControlTip{"txtRes", "The name by which elements find the resource"},
    ControlTip{"txtResDef", "The name by which elements find the resource"},
    ControlTip{"cmdBrowse", "Choose a picture or a video on this computer"},
    ControlTip{"frmResources/cmdAdd", "Add the chosen file to the skin under this name (Return)"},
    ControlTip{"cmdAddDef", "Add the chosen one to the skin under this name (Return)"},
    ControlTip{"lstResDef", "What the dashboard supplies"},
    ControlTip{"lstRes", "The resources of the skin (F2 renames, Delete removes)"},
    ControlTip{"frmInfo/txtName", "The name of the skin, as the dashboard lists it"},
    ControlTip{"frmInfo/cmdAdd", "Add another field to the information, with a name of your own"},
    ControlTip{"lstFields", "Choose what is to be changed"},
    ControlTip{"txtData", "The value of the field that is chosen in the list"},
    ControlTip{"optYesMusic", "Let music play in the background of the skin"},
    ControlTip{"optNoMusic", "Let the skin be silent"},
    ControlTip{"chkGlobal", "Play the music that the console itself holds, and none of the skin"},
    ControlTip{"chkCustom", "Play files that belong to the skin"},
    ControlTip{"chkRandom", "Play in another order every time"},
    ControlTip{"frmMusic/cmdAdd", "Choose music files for the skin, several at once"},
    ControlTip{"frmColors/Col", "Choose the color of this text"},
    ControlTip{"frmColors/bColor", "Choose the color of this border"},
    ControlTip{"frmColors/fColor", "Choose the color of this fill"},
};

} // namespace

void setControlTips(QWidget& window) {
    setToolTips(window, tips);
}

} // namespace tarvel
