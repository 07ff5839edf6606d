#include "ui/Events.h"

#include "ui/Form.h"

void Action::operator()() const {
    if (plain_)
        (form_->*plain_)();
    else if (indexed_)
        (form_->*indexed_)(index_);
}

void IndexAction::operator()(int index) const {
    if (handler_) (form_->*handler_)(index);
}
