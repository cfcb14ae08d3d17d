#pragma once

namespace workbench::desktop {

/// The page about the dashboard, in Markdown and UTF-8.
const char* helpText();

}  // namespace workbench::desktop
