#pragma once

namespace Module1 {

/// Connects to the running ACT!: creates the application object and takes its views and preferences. A failure is
/// reported to the user and gives false.
bool Create_object();

/// Lets go of everything that Create_object took.
void Release_object() noexcept;

} // namespace Module1
