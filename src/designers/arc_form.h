#pragma once

#include "controls/check_box.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/pointed_picture.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/vista_button.h"
#include "designers/arc_drawing.h"
#include "designers/curve_drawing.h"
#include "designers/polygon_drawing.h"
#include "designers/segment_drawing.h"
#include "designers/triangle_drawing.h"

namespace coinlet {

struct Context;

/// A small drawing studio on a copy of the canvas: arcs, triangles, quarters of circles, curves and polygons.
/// What a way of drawing does is its own unit; the form chooses between them, and hands on what the pointer
/// and the pen do.
class ArcForm : public Form {
public:
    explicit ArcForm(Context& context);

    Shape Shape1{*this, "Shape1"};        ///< Edge of the picture.
    PointedPicture Pic{*this, "Pic"};     ///< The working copy. Its background is what curves are drawn on.
    Shape Layer{Pic, "Layer"};            ///< The circle of the segments and the polygons.
    PictureBox TMPres{*this, "TMPres"};   ///< The background that was painted last.
    Label InfoLabel{*this, "InfoLabel"};  ///< What to do here.
    Label CorLabel{*this, "CorLabel"};    ///< Where the pointer is.
    Label Label1{*this, "Label1"};        ///< What Option1 is for.
    ControlArray<OptionButton> Option1{*this, "Option1", 0, 5};  ///< The ways of drawing.
    ArcDrawing Arcs{*this, Pic.surface};
    TriangleDrawing Triangles{*this, Pic.surface};
    SegmentDrawing Segments;
    CurveDrawing Curves;
    PolygonDrawing Polygons{*this, Pic.surface, Layer};
    Frame Frame5{*this, "Frame5"};                                    ///< Pen and way back.
    Label Label3{Frame5, "Label3"};                                   ///< Pen width in words.
    ScrollBar HScroll1{Frame5, "HScroll1", Orientation::Horizontal};  ///< Pen width in pixels.
    VistaButton ResetKnop{Frame5, "ResetKnop"};                       ///< Goes back to the canvas.
    Label Label7{Frame5, "Label7"};                                   ///< What ResetKnop does.
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void Option1_Click(int index);
    void Pic_MouseDown(int button, float x, float y);
    void Pic_MouseMove(int button, float x, float y);
    void Pic_MouseUp();
    void HScroll1_Change();
    void ResetKnop_Click();

    DrawingMode& Mode() { return *modes_.at(ArcMode); }
    void PictureWiped();

    Context& context_;
    std::array<DrawingMode*, 5> modes_{&Arcs, &Triangles, &Segments, &Curves, &Polygons};
    std::uint8_t ArcMode = 0;  ///< The index of `Option1`.
};

}  // namespace coinlet
