#include "controls/FocusPoint.h"

namespace Tensarix {

FocusPoint::~FocusPoint() {
    if (holder_ == this)
        holder_ = nullptr;
}

void FocusPoint::Set() {
    if (Has())
        return;
    FocusPoint* before = holder_;
    holder_ = this;
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
    holder_ = nullptr;
    Run(OnLostFocus);
}

} // namespace Tensarix
