// A list of field names beside a box for the value of the selected one.
#pragma once

#include <QGroupBox>

class QGridLayout;
class QHBoxLayout;
class QListWidget;

namespace tarvel {

class FieldEdit;

/// Choosing a field moves the focus to its value. Without a chosen field there is no value to type.
class FieldsFrame : public QGroupBox {
    Q_OBJECT

  public:
    explicit FieldsFrame(const QString& caption, QWidget* parent = nullptr);

    /// Lists the fields, with none selected and no value.
    void setFields(const QStringList& names);
    /// Gives the focus to the list, which selects nothing.
    void focusFields();
    /// As a click on the field.
    void selectField(int field);
    /// From 0 on; -1 when none is selected.
    [[nodiscard]] int selectedField() const;
    /// Shows a value without telling of it.
    void setValue(const QString& text);

    /// Puts a widget right of the value box.
    void addBesideValue(QWidget* widget);
    /// Puts a widget below the value box.
    void addBelowValue(QWidget* widget);
    /// Puts a widget below everything.
    void addBelow(QWidget* widget);

  signals:
    /// A field was clicked or selected; the answer is setValue().
    void fieldClicked(int field);
    /// The value was changed while the field was selected.
    void valueChanged(int field, const QString& text);

  private:
    void showNoValue();
    void lstFields_Click();
    void txtData_Change();

    QListWidget* lstFields_;
    FieldEdit* txtData_;
    QGridLayout* grid_;
    QHBoxLayout* valueLine_;
};

} // namespace tarvel
