#pragma once

#include <string>

/// What the program knows about the ACT! installation.
class clsToolbarIcon {
public:
    /// Full path of ACT!'s program: the one that Windows associates with ".dbf". "none" when there is no association,
    /// "" when the shell cannot tell.
    std::wstring GetACTLocation() const;
};
