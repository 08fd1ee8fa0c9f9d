#pragma once

/// How a drill's dialog was left.
enum class DialogAnswer { Confirmed = 1, Cancelled = 2 };
