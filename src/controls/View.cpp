#include "controls/View.h"

namespace Tensarix {

FocusPoint::~FocusPoint() {
    if (holder == this)
        holder = nullptr;
}

void FocusPoint::Set() {
    if (Has())
        return;
    FocusPoint* before = holder;
    holder = this;
    if (before)
        Run(before->OnLostFocus);
    if (!Has()) // the handler gave it to another one
        return;
    Run(Take);
    Run(OnGotFocus);
}

void FocusPoint::Release() {
    if (!Has())
        return;
    holder = nullptr;
    Run(OnLostFocus);
}

} // namespace Tensarix
