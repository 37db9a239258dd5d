#include "window/calculator/CalcWindow.h"

#include "calculator/CalcConstants.h"
#include "calculator/CalcDisplay.h"
#include "calculator/CalcHelpModule.h"
#include "calculator/CalcMemoryFrm.h"
#include "calculator/CalcNumbers.h"
#include "calculator/CalcStatistics.h"
#include "calculator/CalcWaiting.h"
#include "shell/Version.h"
#include "ui_CalcWindow.h"
#include "window/Bind.h"
#include "window/FittingArea.h"
#include "window/KeyCodes.h"
#include "window/Theme.h"
#include "window/To_Qt.h"
#include "window/calculator/CalcConstantDialog.h"
#include "window/calculator/CalcDataDialog.h"
#include "window/calculator/CalcHelpDialog.h"
#include "window/calculator/CalcKeyLayout.h"
#include "window/calculator/CalcMemoryDialog.h"
#include "window/calculator/CalcResultsDialog.h"

#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QEventLoop>
#include <QGridLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace Tensarix {

namespace {

constexpr int clockTurnMs = 80;
constexpr int displayCharacters = 17, exponentCharacters = 3;
constexpr double displaySize = 3.2, exponentSize = 2.1; // against the font of the form, at least
constexpr double exponentRaise = 0.2;
constexpr int precisions = 15;
constexpr double calculatorPart = 0.9; // of a small screen's height
constexpr double leastPoints = 6, fontStep = 0.95;
constexpr int pageTop = 8;                           // from the tabs to the keys
constexpr int dialogOffset = 90, pointsPerInch = 72; // of the memory dialog, to the right

// The display's own colours.
constexpr QRgb panelLight = 0xFFDFE8D6, inkLight = 0xFF10200F;
constexpr QRgb panelDark = 0xFF0E1410, inkDark = 0xFFCDE9C6;

// Local time, to what the machine's clock tells.
CalcTime Local_Now() {
    using namespace std::chrono;
    const seconds offset(QDateTime::currentDateTime().offsetFromUtc());
    const auto now = time_point_cast<microseconds>(system_clock::now());
    return CalcTime(now.time_since_epoch() + offset);
}

// The key that a key of the keyboard presses; null if none.
const CalcKey* Key_For(const QKeyEvent& event) {
    constexpr char32_t deleteCharacter = 0x7F;
    if (event.key() == Qt::Key_F1 && event.modifiers() == Qt::NoModifier)
        return Find_Key("HelpButton");
    if (event.key() == Qt::Key_Delete)
        return Key_For_Character(deleteCharacter);
    return Key_For_Character(static_cast<char32_t>(Key_Character(event)));
}

QString Rich_Caption(const CalcKeyLook& look, const CalcKey& key) {
    return look.Rich.empty() ? To_Qt(key.Caption).toHtmlEscaped() : To_Qt(look.Rich);
}

// "Help" and "Exit" can be reached by Alt and their letter; the rest by what they type.
QString Button_Text(const CalcKey& key) {
    const QString caption = To_Qt(key.Caption);
    if (key.Name == "HelpButton")
        return QLatin1Char('&') + caption;
    if (key.Name == "ExitButton")
        return QString(caption).insert(1, QLatin1Char('&'));
    return QString(caption).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

// A caution stands on a tinted ground, and says so to who can't see that.
void Show_Weight(QLabel& label, const Advice& remark) {
    const bool caution = !remark.Text.empty() && remark.Weight != RemarkWeight::Note;
    QPalette colours = label.parentWidget()->palette();
    if (caution)
        colours.setColor(QPalette::Window, Tint_Colour(Drawn::Ink::Alert, colours));
    label.setPalette(colours);
    label.setAutoFillBackground(caution);
    const QString description =
        To_Qt(Weight_Word(remark.Weight)) + QStringLiteral(" on the number shown");
    if (label.accessibleDescription() != description) // who listens is told each time it is set
        label.setAccessibleDescription(description);
}

// These settings are filed under the program's folder as application name.
void Add_Settings(CalcHost& host, Machine& machine) {
    const auto section = [&machine](std::string_view name) {
        return QDir(machine.Places.Program).path().toStdString().append("/").append(name);
    };
    host.Read_Setting = [&machine, section](std::string_view name, std::string_view key) {
        return machine.Store.Read(section(name), key);
    };
    host.Write_Setting = [&machine, section](std::string_view name, std::string_view key,
                                             std::string_view text) {
        machine.Store.Write(section(name), key, text);
    };
}

// The caption with its first letter or digit as mnemonic.
QString Tab_Text(CalcPage page) {
    QString text = To_Qt(Page_Caption(page));
    const auto first =
        std::find_if(text.cbegin(), text.cend(), [](QChar c) { return c.isLetterOrNumber(); });
    return text.insert(first - text.cbegin(), QLatin1Char('&'));
}

} // namespace

CalcWindow::CalcWindow(const Desk& desk, CalcVariables& vars, QWidget* parent)
    : QDialog(parent), desk_(desk), calc_{vars, Make_Host(), {}},
      ui_(std::make_unique<Ui::CalcWindow>()) {
    ui_->setupUi(this);
    ui_->DisplayBox->Set_Room(displayCharacters, displaySize);
    ui_->ExpoBox->Set_Room(exponentCharacters, exponentSize);
    ui_->ExpoBox->Set_Raise(exponentRaise);
    ui_->MultiPage1->tabBar()->setExpanding(true);
    for (int page = 0; page < ui_->MultiPage1->count(); ++page)
        ui_->MultiPage1->setTabText(page, Tab_Text(static_cast<CalcPage>(page + 1)));
    Make_Modes();
    connect(ui_->ResultsButton, &QAbstractButton::clicked, this, &CalcWindow::Toggle_Results);
    for (const CalcPage page :
         {CalcPage::First, CalcPage::Second, CalcPage::Third, CalcPage::Mode, CalcPage::Pad})
        Make_Keys(page);
    Colour_Panel();
    Open(calc_);
    Show_Panel();
    Fit_Font();
    Let_Scroll(*this);
    restoreGeometry(QByteArray::fromBase64(
        QByteArray::fromStdString(Settings(desk_.Host.Store).Text(Setting::CalculatorPlace))));
    setFocus();
}

CalcWindow::~CalcWindow() = default;

CalcHost CalcWindow::Make_Host() {
    CalcHost host;
    Machine& machine = desk_.Host;
    host.Now = Local_Now;
    host.Yield = [this] { return Clock_Yield(); };
    host.DataFolder = machine.Places.Data;
    host.Ask = [&machine](const CalcQuestion& question) {
        return machine.Boxes.Ask_Yes_No(question.Text, question.Title,
                                        question.WarningSign ? MessageIcon::Exclamation
                                                             : MessageIcon::Information);
    };
    Add_Settings(host, machine);
    Add_Dialogs(host);
    return host;
}

void CalcWindow::Add_Dialogs(CalcHost& host) {
    host.Show_Memory = [this](CalcMemoryFrm& frm) {
        CalcMemoryDialog dialog(frm, this);
        Put_Beside(dialog);
        Open_Dialog(dialog);
    };
    host.Show_Data = [this](CalcDataFrm& frm) {
        CalcDataDialog dialog(frm, this);
        Open_Dialog(dialog);
    };
    host.Show_Constants = [this](CalcConstantFrm& frm) {
        CalcConstantDialog dialog(frm, this);
        Open_Dialog(dialog);
    };
    host.Show_Help = [this] { Show_Help(); };
    host.Close_Form = [this] { close(); };
}

// At the same top, a step to the right, as far as the screen allows.
void CalcWindow::Put_Beside(QDialog& dialog) const {
    const int step = dialogOffset * logicalDpiX() / pointsPerInch;
    const int last = screen()->availableGeometry().right() - dialog.sizeHint().width();
    dialog.move(std::max(x(), std::min(x() + step, last)), y());
}

// A dialog shows over what has been reached so far.
void CalcWindow::Open_Dialog(QDialog& dialog) {
    Show_Panel();
    dialog.exec();
}

void CalcWindow::Show_Help() {
    const auto speak = [this](std::string_view text) {
        desk_.Say("");
        if (!text.empty())
            desk_.Say(text);
    };
    CalcHelpFrm frm(std::to_string(majorVersion) + "." + std::to_string(minorVersion),
                    desk_.ReadOut, speak);
    CalcHelpDialog dialog(frm, desk_.Host.Speech, this);
    Open_Dialog(dialog);
}

// It stays open while keys are pressed, as long as the calculator does.
void CalcWindow::Toggle_Results() {
    if (results_) {
        results_->close();
        return;
    }
    const auto use = [this](double value) {
        Do([&] { Key_In_Number(calc_, Number_Text(value)); });
    };
    const auto copy = [this](double value) { desk_.Host.Clip.Set_Text(Number_Text(value)); };
    results_ = new CalcResultsDialog(calc_.Vars.Results, use, copy, this);
    results_->setAttribute(Qt::WA_DeleteOnClose);
    connect(results_, &QObject::destroyed, this, [this] { results_ = nullptr; });
    const int right = frameGeometry().right();
    const bool fits = right + results_->width() <= screen()->availableGeometry().right();
    results_->move(fits ? right : std::max(x() - results_->width(), 0), y());
    results_->show();
}

// The display and the keys stand together: on a small screen they are rather small than scrolled.
void CalcWindow::Fit_Font() {
    const int room = static_cast<int>(screen()->availableSize().height() * calculatorPart);
    QFont smaller = font();
    while (layout()->totalMinimumSize().height() > room && smaller.pointSizeF() > leastPoints) {
        smaller.setPointSizeF(smaller.pointSizeF() * fontStep);
        setFont(smaller);
        Measure_Anew(*this);
        layout()->invalidate();
    }
}

// Keys and pages

QGridLayout& CalcWindow::Grid_Of(CalcPage page) {
    QWidget* const places[] = {ui_->PadFrame, ui_->FirstPage, ui_->SecondPage, ui_->ThirdPage,
                               ui_->ModeKeys};
    QWidget* const place = places[static_cast<std::size_t>(page)];
    if (!place->layout()) {
        auto* grid = new QGridLayout(place);
        grid->setSpacing(4);
        const bool onTab = page != CalcPage::Pad && page != CalcPage::Mode;
        grid->setContentsMargins(0, onTab ? pageTop : 0, 0, 0);
        for (int column = 0; column < Columns_Of(page); ++column)
            grid->setColumnStretch(column, 1);
    }
    return *static_cast<QGridLayout*>(place->layout());
}

CalcKeyButton* CalcWindow::Make_Button(const CalcKey& key, const CalcKeyLook& look,
                                       QWidget* parent) {
    auto* button = new CalcKeyButton(look.Role, Rich_Caption(look, key), parent);
    button->setObjectName(To_Qt(key.Name));
    button->setText(Button_Text(key));
    button->setToolTip(To_Qt(key.ToolTip));
    button->setAccessibleName(To_Qt(key.ToolTip.empty() ? key.Caption : key.ToolTip));
    connect(button, &QAbstractButton::clicked, this, [this, &key] { Run(key); });
    return buttons_[key.Name] = button;
}

// Row by row; the mode page has its options from the form.
void CalcWindow::Make_Keys(CalcPage page) {
    QGridLayout& grid = Grid_Of(page);
    int place = 0;
    for (const CalcKey& key : Calc_Keys()) {
        if (key.Page != page || findChild<QRadioButton*>(To_Qt(key.Name)))
            continue;
        const CalcKeyLook look = Look_Of(key);
        const int row = place / Columns_Of(page), column = place % Columns_Of(page);
        grid.addWidget(Make_Button(key, look, grid.parentWidget()), row, column, 1, look.Span);
        grid.setRowStretch(row, look.Role == CalcKeyRole::Plain ? 2 : 3);
        place += look.Span;
    }
}

void CalcWindow::Make_Modes() {
    for (QRadioButton* option : {ui_->StdButton, ui_->FxnButton, ui_->ScnButton, ui_->DegButton,
                                 ui_->RadButton, ui_->GradButton}) {
        const CalcKey& key = *Find_Key(option->objectName().toStdString());
        option->setText(To_Qt(key.Caption));
        option->installEventFilter(this);
        connect(option, &QRadioButton::toggled, this, [this, &key](bool chosen) {
            if (chosen && !showing_)
                Run(key);
        });
    }
    ui_->PrecBox->setPlaceholderText(QStringLiteral(" ")); // so that no item is chosen by itself
    for (int digits = 0; digits < precisions; ++digits)
        ui_->PrecBox->addItem(QString::number(digits));
    Name_List(ui_->PrecBox);
    ui_->PrecBox->installEventFilter(this);
    ui_->MultiPage1->tabBar()->installEventFilter(this);
    connect(ui_->MultiPage1, &QTabWidget::currentChanged, this, &CalcWindow::Show_Panel);
    connect(ui_->PrecBox, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (!showing_)
            Do([&] { PrecBox_Change(calc_, index); });
    });
}

// The panel

void CalcWindow::Colour_Panel() {
    const bool dark = Is_Dark(palette());
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(dark ? panelDark : panelLight));
    colours.setColor(QPalette::WindowText, QColor(dark ? inkDark : inkLight));
    ui_->PanelFrame->setPalette(colours);
    Show_Weight(*ui_->PanelRemark, calc_.Panel.Remark);
}

void CalcWindow::Show_Panel() {
    const CalcPanel& panel = calc_.Panel;
    const std::string waiting = Waiting_Text(calc_);
    showing_ = true;
    const std::pair<QLabel*, std::string_view> texts[] = {
        {ui_->DisplayBox, panel.DisplayBox},
        {ui_->ExpoBox, panel.ExpoBox},
        {ui_->DispMode_Indicator, Indicator_Text(panel.DispMode_Indicator)},
        {ui_->Mode_Indicator, Indicator_Text(panel.Mode_Indicator)},
        {ui_->Mem_Indicator, panel.Mem_Indicator},
        {ui_->CCalc_Indicator, panel.CCalc_Indicator},
        {ui_->DateBox, panel.DateBox},
        {ui_->PanelRemark, panel.Remark.Text},
        {ui_->WaitingLab, waiting}};
    for (const auto& [label, text] : texts)
        label->setText(To_Qt(text));
    for (QLabel* cut : {ui_->PanelRemark, ui_->WaitingLab})
        cut->setToolTip(cut->text());
    Show_Weight(*ui_->PanelRemark, panel.Remark);
    if (results_)
        results_->Show_Results();
    const std::pair<QRadioButton*, bool> options[] = {
        {ui_->StdButton, panel.DispMode_Indicator == DisplayMode::Norm},
        {ui_->FxnButton, panel.DispMode_Indicator == DisplayMode::Fix},
        {ui_->ScnButton, panel.DispMode_Indicator == DisplayMode::Sci},
        {ui_->DegButton, panel.Mode_Indicator == AngleMode::DegreeMode},
        {ui_->RadButton, panel.Mode_Indicator == AngleMode::RadianMode},
        {ui_->GradButton, panel.Mode_Indicator == AngleMode::GradianMode}};
    for (const auto& [option, chosen] : options)
        if (chosen)
            Choose(option);
    if (ui_->PrecBox->isVisible()) { // hidden, it would tell a screen reader of each change
        ui_->PrecBox->setCurrentIndex(panel.PrecIndex);
        ui_->PrecBox->setEnabled(panel.PrecEnabled);
        ui_->PrecLab->setEnabled(panel.PrecEnabled);
    }
    showing_ = false;
}

void CalcWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && ui_->PanelFrame)
        Colour_Panel();
}

// Ways in

template <typename Work>
void CalcWindow::Do(Work work) {
    work();
    if (closed_)
        return;
    Show_Panel();
    if (clockLoop_) // the clock looks at once whether it goes on
        clockLoop_->quit();
}

void CalcWindow::Run(const CalcKey& key) {
    Do([&] { Press(calc_, key); });
}

void CalcWindow::Press_Key(std::string_view name) {
    if (const CalcKey* key = Find_Key(name))
        Run(*key);
}

// The page of a typed key comes to the front, so that its light is seen.
void CalcWindow::Type(const CalcKey& key) {
    const auto button = buttons_.find(key.Name);
    if (button != buttons_.end()) {
        if (key.Page != CalcPage::Pad)
            ui_->MultiPage1->setCurrentIndex(static_cast<int>(key.Page) - 1);
        button->second->Light();
    }
    Run(key);
}

void CalcWindow::Copy() {
    if (const std::string text = Display_As_Number(calc_); !text.empty())
        desk_.Host.Clip.Set_Text(text);
}

void CalcWindow::Paste() {
    // A cell of a spreadsheet comes with a line end.
    const QString text = To_Qt(desk_.Host.Clip.Text()).trimmed();
    Do([&] { Key_In_Number(calc_, text.toStdString()); });
}

void CalcWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        Copy();
    else if (event->matches(QKeySequence::Paste))
        Paste();
    else if (event->keyCombination() == QKeyCombination(Qt::ControlModifier, Qt::Key_L))
        Toggle_Results();
    else if (const CalcKey* key = Key_For(*event))
        Type(*key);
    else
        event->ignore();
}

// The lists and options leave the calculator's keys to it, and a closed list the wheel.
bool CalcWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && watched == ui_->PrecBox) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::KeyPress && Key_For(*static_cast<QKeyEvent*>(event))) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

// The clock

bool CalcWindow::Clock_Yield() {
    if (closed_)
        return false;
    Show_Panel();
    QEventLoop loop;
    QEventLoop* const outer = std::exchange(clockLoop_, &loop);
    QTimer::singleShot(clockTurnMs, &loop, &QEventLoop::quit);
    loop.exec();
    clockLoop_ = outer;
    return !closed_ && desk_.Host.Events.Yield();
}

void CalcWindow::done(int result) {
    if (!closed_) {
        closed_ = true;
        Settings(desk_.Host.Store)
            .Save(Setting::CalculatorPlace, saveGeometry().toBase64().toStdString());
        Close(calc_);
    }
    if (clockLoop_)
        clockLoop_->quit();
    QDialog::done(result);
}

} // namespace Tensarix
