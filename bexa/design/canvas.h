// What the drawing programs of the suite derive from. Nothing in this library calls these operations.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/rsc_modes.h"
#include "bexa/foundation/vocabulary.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeometry/yangle.h"
#include "bexa/foundation/ygeometry/yint_point.h"

class BexIdName;
class YgeoFigure;

// A surface to draw on: a window, a plotter, a file. Points and lengths are coordinates of the design;
// colours, line widths, line styles, fill styles and fonts are indices into the tables of the circuit
// resource.
class BEXA_API BexCanvas {
public:
    BexCanvas() noexcept = default;
    BexCanvas(const BexCanvas&) noexcept = default;
    BexCanvas& operator=(const BexCanvas&) noexcept = default;
    virtual ~BexCanvas();

    // A picture is what stands between the two; 0 if the surface isn't ready.
    virtual unsigned long beginPicture() = 0;
    virtual unsigned long endPicture() = 0;
    virtual void clear() = 0;
    // Shows what was drawn so far.
    virtual void flush() = 0;
    virtual void refresh(const YintPoint& corner, const YintPoint& opposite) = 0;

    // The part of the design that is seen, and how it lies on the surface.
    virtual YintPoint viewOrigin() const = 0;
    virtual void setViewOrigin(const YintPoint& origin) = 0;
    virtual double viewScale() const = 0;
    virtual void setViewScale(double scale) = 0;
    virtual void pan(const YintPoint& by) = 0;
    virtual void zoom(const YintPoint& about, double factor) = 0;
    virtual void fit(const YintPoint& corner, const YintPoint& opposite) = 0;
    virtual YintPoint toDevice(const YintPoint& point) const = 0;
    virtual YintPoint fromDevice(const YintPoint& point) const = 0;

    // Nothing is drawn outside the clipped part.
    virtual void clip(const YintPoint& corner, const YintPoint& opposite) = 0;
    virtual void unclip() = 0;
    virtual unsigned long isVisible(const YintPoint& corner, const YintPoint& opposite) const = 0;

    // How what follows is placed; saved states nest.
    virtual void saveState() = 0;
    virtual void restoreState() = 0;
    virtual void translate(const YintPoint& by) = 0;
    virtual void rotate(Yangle angle, const YintPoint& centre) = 0;
    virtual void mirror(const YintPoint& centre) = 0;
    virtual void resetTransform() = 0;

    // How what follows looks.
    virtual void setColor(unsigned int index) = 0;
    virtual void setLineWidth(unsigned int index) = 0;
    virtual void setLineStyle(unsigned long index) = 0;
    virtual void setFillStyle(unsigned int index) = 0;
    virtual void setTextFont(unsigned int index) = 0;
    virtual void setTextAngle(Yangle angle) = 0;
    virtual void setTextJustify(int justify) = 0;
    virtual void setHighlight(unsigned long isOn) = 0;

    // Lines begin at the current point and leave it at their end.
    virtual void moveTo(const YintPoint& point) = 0;
    virtual void lineTo(const YintPoint& point) = 0;
    virtual void line(const YintPoint& from, const YintPoint& to) = 0;
    virtual void polyline(const YintPoint* points, int count) = 0;
    virtual void polygon(const YintPoint* points, int count) = 0;
    virtual void fillPolygon(const YintPoint* points, int count) = 0;
    virtual void rectangle(const YintPoint& corner, const YintPoint& opposite) = 0;
    virtual void fillRectangle(const YintPoint& corner, const YintPoint& opposite) = 0;

    // Arcs run counter-clockwise.
    virtual void circle(const YintPoint& centre, long radius) = 0;
    virtual void fillCircle(const YintPoint& centre, long radius) = 0;
    virtual void arc(const YintPoint& centre, long radius, Yangle from, Yangle to) = 0;
    virtual void fillArc(const YintPoint& centre, long radius, Yangle from, Yangle to) = 0;
    virtual void ellipse(const YintPoint& centre, long radiusX, long radiusY) = 0;

    virtual void node(const YintPoint& at, long size) = 0;
    virtual void cross(const YintPoint& at, long size) = 0;
    virtual void grid(const YintPoint& origin, const YintPoint& pitch) = 0;
    virtual void figure(const YgeoFigure& figure) = 0;
    virtual void text(const YintPoint& at, const char* text) = 0;
    virtual long textWidth(const char* text) const = 0;
    virtual long textHeight() const = 0;

    // What follows the pointer and leaves no trace.
    virtual void rubberLine(const YintPoint& from, const YintPoint& to) = 0;
    virtual void rubberRectangle(const YintPoint& corner, const YintPoint& opposite) = 0;
    virtual void rubberFigure(const YgeoFigure& figure) = 0;
    virtual void eraseRubber() = 0;

    // A number kept for the drawing program, which gives it its meaning; 0 at the start. The only thing that
    // copies and assignments take over.
    long omitsize() const noexcept { return omitsize_; }
    void omitsize(long size) noexcept { omitsize_ = size; }

private:
    long omitsize_ = 0;
};

// The objects of a circuit as a drawing program keeps them.
class BEXA_API BexCdb {
public:
    BexCdb() noexcept = default;
    BexCdb(const BexCdb&) noexcept = default;
    BexCdb& operator=(const BexCdb&) noexcept = default;
    virtual ~BexCdb();

    virtual unsigned long open(const char* path, BexOpenMode mode) = 0;
    virtual unsigned long close(BexCloseMode mode) = 0;
    virtual unsigned long save() = 0;
    virtual unsigned long isChanged() const = 0;

    // The objects of one type, and the properties of an object. 0 if there is none.
    virtual int objectCount(BexObjectType type) const = 0;
    virtual unsigned long object(BexObjectType type, int index, BexIdName& out) const = 0;
    virtual unsigned long property(const BexIdName& object, const char* name, YString& out) const = 0;
    virtual unsigned long setProperty(const BexIdName& object, const char* name, const char* value) = 0;
};
