#include "shell/AboutFrm.h"

#include "shell/Version.h"
#include "speech/SpokenSymbols.h"

namespace Tensarix {

namespace {

constexpr std::string_view description =
    "A reference book and a set of design checks for structural steel: section properties, "
    "allowable beam loads, coefficients of bolt and weld groups, weights, and a scientific "
    "calculator.";

constexpr std::string_view disclaimer =
    "The figures follow the AISC Steel Construction Manual, 13th Edition. Have an engineer check "
    "every number before you rely on it: the program comes without any warranty.\n\n"
    "Its developers are not affiliated with the publisher of the Manual, the American Institute "
    "of Steel Construction.\n\n"
    "Free software under the MIT License.\n";

} // namespace

AboutFrm::AboutFrm(Desk& desk) : desk_(desk) {
    lblTitle.Set_Caption(std::string{applicationTitle});
    lblVersion.Set_Caption("Version " + std::to_string(majorVersion) + "." +
                           std::to_string(minorVersion));
    lblDescription.Set_Caption(std::string{description});
    lblDisclaimer.Set_Caption(std::string{disclaimer} + std::string{legalLine});
    OKButton.Set_Caption("OK");
    OKButton.OnClick = [this] { Run(OnClose); };
}

void AboutFrm::Load() {
    if (!desk_.ReadOut)
        return;
    desk_.Say(lblTitle.Caption());
    desk_.Say(Speak_Phrase(lblVersion.Caption()));
    desk_.Say(lblDescription.Caption());
    desk_.Say(lblDisclaimer.Caption());
}

void AboutFrm::Unload() {
    desk_.Say("");
}

} // namespace Tensarix
