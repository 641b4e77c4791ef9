// The two small windows of the menu "Help".
#pragma once

#include <QDialog>

namespace tarvel {

/// All keys of the program on one page. Not modal.
class FrmKeys : public QDialog {
    Q_OBJECT

  public:
    explicit FrmKeys(QWidget* parent);
};

/// Version, licence and libraries. Not modal.
class FrmAbout : public QDialog {
    Q_OBJECT

  public:
    explicit FrmAbout(QWidget* parent);
};

} // namespace tarvel
