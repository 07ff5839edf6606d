#include "ui/Events.h"

#include "ui/Form.h"

void Action::operator()() const {
    if (plain_)
        (form_->*plain_)();
    else if (indexed_)
        (form_->*indexed_)(index_);
}
