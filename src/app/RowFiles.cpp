#include "app/RowFiles.h"

#include "databases/NameList.h"

#include <utility>

void RowFiles::Set(int row, const std::wstring& path) {
    paths_.resize(static_cast<size_t>(list_.RowCount()));
    paths_[static_cast<size_t>(row)] = path;
    number_ = 0;
    list_.Fade(row, IsMissing(path));
}

bool RowFiles::IsMissing(const std::wstring& path) const { return NameList::Has(missing_, path); }

void RowFiles::Look() {
    number_ = check_.Start(GetParent(list_.Handle()), paths_);
    looksAgain_ = number_ == 0;
}

void RowFiles::Take(WPARAM answer, long number) {
    if (answer == PathCheck::Done) {
        if (std::exchange(looksAgain_, false)) LookLater();
        return;
    }
    const size_t row = PathCheck::Index(answer);
    if (number != number_ || row >= paths_.size() || paths_[row].empty()) return;
    const bool isMissing = PathCheck::IsMissing(answer);
    std::erase(missing_, paths_[row]);
    if (isMissing) missing_.push_back(paths_[row]);
    list_.Fade(static_cast<int>(row), isMissing);
}
