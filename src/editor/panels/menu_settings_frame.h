// The frame of an item menu's settings, with a preview of its texts.
#pragma once

#include "document/kinds/menu_frame.h"

#include <QGroupBox>

#include <array>
#include <vector>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace tarvel {

class ColorWell;
class Prompts;

/// Shows a MenuFrame, and puts into it what the user does; of several menus, what differs as
/// "various". Neither it nor the prompts are owned.
class MenuSettingsFrame : public QGroupBox {
    Q_OBJECT

  public:
    MenuSettingsFrame(MenuFrame& frame, Prompts& prompts, QWidget* parent = nullptr);

    /// Shows the values.
    void refresh();

  signals:
    /// The user changed a value.
    void changed();

  private:
    struct Check {
        QCheckBox* box;
        CheckValue MenuFrame::*value;
    };
    struct Number {
        QLineEdit* edit;
        std::string MenuFrame::*value;
    };
    // A text colour: its box, and a text written in it.
    struct Color {
        ColorWell* well;
        QLabel* preview;
        QString text;
        ColorNumber MenuFrame::*value;
        TextAlignment MenuFrame::*alignment;
    };
    struct Alignment {
        QComboBox* list;
        int MenuFrame::*value;
    };
    /// What the titles, or the descriptions, have in common.
    struct Group;

    void addChecks(QBoxLayout& column);
    void addNumbers(QBoxLayout& column);
    QCheckBox* addCheck(const char* name, std::string_view text, CheckValue MenuFrame::*value);
    QLineEdit* addNumber(const char* name, const QString& spoken, std::string MenuFrame::*value);
    void addGroup(QBoxLayout& column, const Group& group);
    QComboBox* addAlignment(const Group& group);
    QLayout* colorRow(const Group& group, std::size_t which);
    void ask(const Color& color);
    void showCheck(const Check& check);
    void showNumber(const Number& number);
    void showColor(const Color& color);

    MenuFrame& values_;
    Prompts& prompts_;
    std::vector<Check> checks_;
    std::vector<Number> numbers_;
    std::vector<Color> colors_;
    std::vector<Alignment> alignments_;
};

} // namespace tarvel
