#include "window/pages/TravelKeys.h"

#include <QShortcut>
#include <QStackedWidget>

namespace Tensarix {

namespace {

constexpr auto withControl = Qt::CTRL | Qt::SHIFT;

} // namespace

QKeySequence Compare_Key() {
    return QKeySequence(withControl | Qt::Key_C);
}

std::span<const TravelKey> Travel_Keys() {
    static const TravelKey keys[] = {
        {"mnuShowBrowse", &Travel::mnuShowBrowse, QKeySequence(withControl | Qt::Key_B)},
        {"mnuShowBeam", &Travel::mnuShowBeam, QKeySequence(withControl | Qt::Key_L)},
        {"mnuShowWeights", &Travel::mnuShowWeights, QKeySequence(withControl | Qt::Key_W)},
        {"mnuCompare", &Travel::mnuCompare, Compare_Key()},
    };
    return keys;
}

void Bind_Travel_Keys(Travel& travel, QWidget* window, const QStackedWidget& pages) {
    for (const TravelKey& key : Travel_Keys())
        QObject::connect(new QShortcut(key.Key, window), &QShortcut::activated, window,
                         [&travel, item = key.Item] {
                             travel.Prepare();
                             (travel.*item).Click();
                         });
    QObject::connect(new QShortcut(Qt::CTRL | Qt::Key_L, window), &QShortcut::activated, window,
                     [&travel] { travel.Go_To_Lightest(); });
    for (const Mode page : {Mode::Browse, Mode::BeamLoad})
        for (const QKeySequence& key :
             {QKeySequence(Qt::Key_Backspace), QKeySequence(Qt::ALT | Qt::Key_Left)})
            QObject::connect(new QShortcut(key, pages.widget(static_cast<int>(page)), nullptr,
                                           nullptr, Qt::WidgetWithChildrenShortcut),
                             &QShortcut::activated, window, [&travel] { travel.Back(); });
}

} // namespace Tensarix
