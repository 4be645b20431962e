#pragma once

/// Gives what the toolkit draws by itself (file panels, tooltips, the ground behind a dragged
/// picture where windows cannot be see-through) the skin's colours. Call it once the application
/// stands.
void useSkinPalette();
