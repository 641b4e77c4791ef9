// An icon that stands by itself.
#pragma once

#include "widgets/icons.h"

#include <QPainter>
#include <QWidget>

namespace tarvel {

/// Of the small size; follows the palette.
class IconLabel : public QWidget {
    Q_OBJECT

  public:
    explicit IconLabel(IconName name, QWidget* parent = nullptr)
        : QWidget(parent)
        , icon_(icon(name)) {
        setFixedSize(smallIcon, smallIcon);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        icon_.paint(&painter, rect(), Qt::AlignCenter,
                    isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }

  private:
    QIcon icon_;
};

} // namespace tarvel
