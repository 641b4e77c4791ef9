// Makes the dialogs for the skin-wide settings, and shows the one that is asked for.
#include "window/skin_dialogs.h"

#include "dialogs/frm_colors.h"
#include "dialogs/frm_delays.h"
#include "dialogs/frm_info.h"
#include "dialogs/frm_music.h"
#include "dialogs/frm_resources.h"
#include "document/open_edit.h"
#include "editing/step_names.h"

namespace tarvel {

SkinDialogs::SkinDialogs(SkinDocument& document, Prompts& prompts, PictureCache& pictures,
                         QWidget* window)
    : document_(document)
    , frmDelays_(new FrmDelays(document, prompts, window))
    , frmInfo_(new FrmInfo(document, prompts, window))
    , frmColors_(new FrmColors(document, prompts, window))
    , frmMusic_(new FrmMusic(document, prompts, window))
    , frmResources_(new FrmResources(document, prompts, pictures, window)) {}

// What is changed in a dialog is one step, from its opening to its closing.
void SkinDialogs::show(SkinDialog& dialog, std::string_view step) {
    const OpenEdit edit(document_, std::string(step));
    dialog.exec();
}

void SkinDialogs::mnuDelays_Click() {
    show(*frmDelays_, step::delays);
}

void SkinDialogs::mnuInfo_Click() {
    show(*frmInfo_, step::information);
}

void SkinDialogs::mnuColors_Click() {
    show(*frmColors_, step::colors);
}

void SkinDialogs::mnuAudio_Click() {
    show(*frmMusic_, step::audio);
}

void SkinDialogs::mnuResource_Click() {
    show(*frmResources_, step::resources);
}

void SkinDialogs::addResource(const QString& file) {
    frmResources_->takeFile(file);
    show(*frmResources_, step::resources);
}

} // namespace tarvel
