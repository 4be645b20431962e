#pragma once

#include "platform/skinimage.h"

/// The content of a window that is cut out in the shape of the content's background, where what is
/// behind see-through pixels would not show.
class ShapedContent
{
public:
    /// The picture behind everything; none as long as it has not come.
    virtual const SkinImage &background() const = 0;
    /// Where the picture's lower left corner lies in the content.
    virtual UpPoint backgroundOrigin() const { return {}; }

protected:
    ~ShapedContent() = default;
};
