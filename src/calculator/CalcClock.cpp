#include "calculator/CalcClock.h"

#include "calculator/CalcDisplay.h"
#include "common/NumberText.h"

namespace Tensarix {

namespace {

constexpr std::string_view weekdays[] = {"SUNDAY",   "MONDAY", "TUESDAY", "WEDNESDAY",
                                         "THURSDAY", "FRIDAY", "SATURDAY"};
constexpr std::string_view months[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                       "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

std::string Two_Digits(double number) {
    return Format_Number(number, "00");
}

std::string Date_Text(std::chrono::local_days day) {
    const std::chrono::year_month_day date{day};
    const auto weekday = std::chrono::weekday{day}.c_encoding();
    const auto month = static_cast<unsigned>(date.month()) - 1;
    return std::string{weekdays[weekday]} + ", " + std::string{months[month]} + " " +
           Two_Digits(static_cast<unsigned>(date.day())) + ", " +
           Format_Number(static_cast<int>(date.year()), "0000");
}

std::string Time_Text(std::chrono::microseconds sinceMidnight) {
    const std::chrono::hh_mm_ss time{sinceMidnight};
    const auto hours = static_cast<int>(time.hours().count());
    return Two_Digits(hours % 12 == 0 ? 12 : hours % 12) + ":" +
           Two_Digits(static_cast<double>(time.minutes().count())) + ":" +
           Two_Digits(static_cast<double>(time.seconds().count())) + (hours < 12 ? " AM" : " PM");
}

void Show_Clock(CalcMainFrm& form) {
    const CalcTime now = form.Host.Now();
    const auto day = std::chrono::floor<std::chrono::days>(now);
    form.Panel.DateBox = Date_Text(day);
    form.Panel.DisplayBox = Time_Text(now - day);
}

} // namespace

void key_Time(CalcMainFrm& form) {
    DisplayState& display = form.Vars.Display;
    if (display.ErrorLatched || !form.Host.Now || !form.Host.Yield)
        return;
    const bool wasRunning = display.ClockRunning;
    End_Clock(form);
    form.Panel.ExpoBox.clear();
    if (wasRunning)
        return Redisplay(form);
    display.ClockRunning = true;
    while (display.ClockRunning) {
        Show_Clock(form);
        if (!form.Host.Yield())
            End_Clock(form);
    }
}

void End_Clock(CalcMainFrm& form) {
    form.Vars.Display.ClockRunning = false;
    form.Panel.DateBox.clear();
}

bool Direct_Key_Begins(CalcMainFrm& form) {
    if (form.Vars.Display.ClockRunning) {
        key_Time(form);
        return false;
    }
    if (!form.Vars.Display.ErrorLatched)
        form.Vars.Conversion.SexaCount.reset();
    return !form.Vars.Display.ErrorLatched;
}

} // namespace Tensarix
