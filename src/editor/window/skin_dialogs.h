// The dialogs for the skin-wide settings.
#pragma once

#include "document/skin_document.h"

#include <QString>

class QWidget;

namespace tarvel {

class FrmColors;
class FrmDelays;
class FrmInfo;
class FrmMusic;
class FrmResources;
class PictureCache;
class Prompts;
class SkinDialog;

/// They are made hidden with the main window, whose children they are, and shown modally.
class SkinDialogs {
  public:
    SkinDialogs(SkinDocument& document, Prompts& prompts, PictureCache& pictures, QWidget* window);

    void mnuDelays_Click();
    void mnuInfo_Click();
    void mnuColors_Click();
    void mnuAudio_Click();
    void mnuResource_Click();
    /// Opens the resources dialog with a file of the host filled in.
    void addResource(const QString& file);

  private:
    void show(SkinDialog& dialog, std::string_view step);

    SkinDocument& document_;
    FrmDelays* frmDelays_;
    FrmInfo* frmInfo_;
    FrmColors* frmColors_;
    FrmMusic* frmMusic_;
    FrmResources* frmResources_;
};

} // namespace tarvel
