#pragma once

#include <vector>

namespace coinlet {

class Control;
class Form;

/// What holds controls: a form, a frame, a picture.
class Container {
public:
    virtual ~Container() = default;

    /// The controls that lie directly in it, in the order they were made; later ones lie in front.
    const std::vector<Control*>& Children() const { return children_; }

    virtual Form& HostForm() = 0;
    /// True if it and all that it lies in is visible.
    virtual bool ContainerShown() const = 0;
    /// True if it and all that it lies in is enabled.
    virtual bool ContainerEnabled() const = 0;
    /// Twips (15) or pixels (1): the unit in which its children are placed, as units a pixel.
    virtual double ChildUnitsPerPixel() const = 0;

private:
    friend class Control;
    std::vector<Control*> children_;
};

}  // namespace coinlet
