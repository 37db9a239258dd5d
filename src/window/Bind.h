// Binds a widget to the control of a screen: Bind(ui.ShapeSizeUS, page.ShapeSizeUS), and nothing
// more is to be known. The control must outlive the widget.
#pragma once

#include "controls/Controls.h"
#include "controls/DrawingBox.h"
#include "controls/FlexGrid.h"
#include "controls/ResultBox.h"

class QAbstractButton;
class QAction;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QStatusBar;
class QTabBar;
class QTabWidget;

namespace Tensarix {

class DrawingView;
class GridView;
class Link;

// Checks the option, which is then the one of its group that Tab goes to.
void Choose(QAbstractButton* option);

// An open list is a window of its own, which a screen reader calls like its box.
void Name_List(QComboBox* widget);

// The link, for what else the widget takes over from its control.
Link* Bind(QComboBox* widget, ComboBox& control);
Link* Bind(QLineEdit* widget, TextBox& control);
void Bind(QPushButton* widget, Button& control);
void Bind(QAbstractButton* widget, OptionButton& control);
void Bind(QLabel* widget, Label& control);
void Bind(QGroupBox* widget, Frame& control);
void Bind(QStackedWidget* widget, TabControl& control);
// A bar of tabs and the pages that it chooses from. The handler runs before the page changes.
void Bind(QTabBar* bar, QStackedWidget* pages, TabControl& control);
// The strip's first tab is number 1.
void Bind(QTabBar* widget, TabControl& control);
// The first tab is number 0.
void Bind(QTabWidget* widget, TabControl& control);
void Bind(QLineEdit* widget, ResultBox& control);
void Bind(QStatusBar* widget, StatusBar& control);
void Bind(QAction* action, MenuItem& control);
void Bind(DrawingView* widget, DrawingBox& control);
void Bind(GridView* widget, FlexGrid& control);

} // namespace Tensarix
