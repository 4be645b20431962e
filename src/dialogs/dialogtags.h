#pragma once

/// The tags of a message dialog's buttons; each is also the answer of who presses it.
inline constexpr int kDialogCloseTag = 4096;
inline constexpr int kDialogOKTag = 4097;
inline constexpr int kDialogCancelTag = 4098;
