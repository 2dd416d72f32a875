// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorCommands.h"
#include "editor/Tool.h"
#include "widgets/OverflowRow.h"

class ColorWell;
class QComboBox;
class SegmentedControl;
struct Surroundings;
struct ToolSettings;

/// The row of controls at the top of an editor's window. It tells what was chosen and shows what it
/// is told to; what a choice does is the window's business.
class EditorToolbar final : public QWidget {
    Q_OBJECT

public:
    EditorToolbar(const Surroundings& surroundings, EditorCommands& commands, QMenu& funMenu);

    void setTool(Tool tool);
    void setSettings(const ToolSettings& settings);

    /// Where something that belongs to a command may open.
    QWidget& anchor(EditorCommands::Command command);

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void toolChosen(Tool tool);
    void colorChosen(const QColor& color);
    void strokeChosen(double pixels);
    void textStyleChosen(const QString& name);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    enum class Item;

    void addCommand(EditorCommands::Command command, OverflowRow::Gap gap, Item item);
    void addTools();
    void addColor();
    void addStroke();
    void addZoom();
    void addTextStyle();
    void addFun(QMenu& menu);
    void add(QWidget* control, OverflowRow::Gap gap, Item item, OverflowRow::Entry entry);

    const Surroundings& m_surroundings;
    EditorCommands& m_commands;
    OverflowRow* m_row;
    SegmentedControl* m_tools = nullptr;
    ColorWell* m_color = nullptr;
    QComboBox* m_stroke = nullptr;
    QComboBox* m_textStyle = nullptr;
    std::array<QWidget*, EditorCommands::Count> m_buttons {};
};
