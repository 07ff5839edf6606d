#pragma once

#include "support/PathCheck.h"
#include "ui/ListView.h"

#include <string>
#include <vector>

/// The files behind the rows of the list: looked for beside the user's work, and marked where they are missing.
class RowFiles {
public:
    /// Messages to the form of the list, and what it is to do then.
    struct Messages {
        UINT Look;   ///< Look
        UINT Answer; ///< Take
    };

    RowFiles(ListView& list, const Messages& messages)
        : list_(list), lookMessage_(messages.Look), check_(messages.Answer) {}

    /// A row has got another file. Its mark is what was last found out about that.
    void Set(int row, const std::wstring& path);
    /// As it was when it was last looked for; false for a path that has not been.
    bool IsMissing(const std::wstring& path) const;
    /// Orders a look at all of them.
    void LookLater() const { PostMessageW(GetParent(list_.Handle()), lookMessage_, 0, 0); }
    /// Begins one. One at a time: another one follows it.
    void Look();
    /// An answer, as the message's two parameters have it.
    void Take(WPARAM answer, long number);

private:
    ListView& list_;
    UINT lookMessage_;
    PathCheck check_;
    long number_ = 0;                   ///< of the last look; 0 when what it finds belongs to other rows
    bool looksAgain_ = false;           ///< the rows have changed while their files were looked for
    std::vector<std::wstring> paths_;   ///< by row
    std::vector<std::wstring> missing_; ///< those of them that were not there when they were last looked for
};
