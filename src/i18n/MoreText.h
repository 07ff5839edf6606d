#pragma once

#include <string>

/// Texts for situations that the numbered table knows nothing of.
enum class MoreText { ListTooLong, WhatThisIs };

/// A text in the current language.
std::wstring Translated(MoreText text);
