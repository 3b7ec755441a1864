#pragma once

/// How screen readers operate check boxes and radio buttons here. By itself the toolkit flips them
/// without a click, and the window's slots, which listen for clicks, would not hear of it.
namespace ToggleAccessible {

/// Makes the toolkit ask here for check boxes and radio buttons; further calls do nothing.
void install();

} // namespace ToggleAccessible
