// Making and showing the dialogs.
#include "window/skin_dialogs.h"

#include "dialogs/frm_colors.h"
#include "dialogs/frm_delays.h"
#include "dialogs/frm_info.h"
#include "dialogs/frm_music.h"
#include "dialogs/frm_resources.h"

namespace tarvel {

SkinDialogs::SkinDialogs(SkinDocument& document, Prompts& prompts, PictureCache& pictures,
                         QWidget* window)
    : frmDelays_(new FrmDelays(document, prompts, window))
    , frmInfo_(new FrmInfo(document, prompts, window))
    , frmColors_(new FrmColors(document, prompts, window))
    , frmMusic_(new FrmMusic(document, prompts, window))
    , frmResources_(new FrmResources(document, prompts, pictures, window)) {}

void SkinDialogs::mnuDelays_Click() {
    frmDelays_->exec();
}

void SkinDialogs::mnuInfo_Click() {
    frmInfo_->exec();
}

void SkinDialogs::mnuColors_Click() {
    frmColors_->exec();
}

void SkinDialogs::mnuAudio_Click() {
    frmMusic_->exec();
}

void SkinDialogs::mnuResource_Click() {
    frmResources_->exec();
}

void SkinDialogs::addResource(const QString& file) {
    frmResources_->takeFile(file);
    frmResources_->exec();
}

} // namespace tarvel
