#pragma once

namespace coinlet {

struct Context;

/// The ten rows of the side panel, where the user enters the colours of a design: with the colour pick in use
/// a left press on a swatch enters the picked colour and its name, another press clears the row.
class SidePanelRows {
public:
    explicit SidePanelRows(Context& context);

private:
    void InfoPic_MouseDown(int button, float x, float y);

    Context& context_;
};

}  // namespace coinlet
