#pragma once

/// Keeps the known name of the input method up to date (platform/InputMethod.h): from now on it is asked for
/// when the input method reports another language and when a window or a box gets the focus. Wants the
/// application object.
void FollowInputMethod();
