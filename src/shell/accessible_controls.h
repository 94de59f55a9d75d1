#pragma once

class QAccessibleEvent;
class QWidget;

namespace coinlet {

/// Has assistive tools, such as screen readers, told what each control is: its role, whether it is ticked,
/// its value, and what they can do to it on the user's behalf. What fields, lists and combo boxes are, the
/// toolkit tells by itself. To be called before the first window is made; further calls do nothing.
void DescribeControls();

/// Tells assistive tools that a tick was set or taken away: that of a widget, or of one of a menu's entries,
/// by its place among them. The toolkit tells by itself of values, but not of these.
void AnnounceTick(QWidget& widget, int entry = -1);

/// Who tells of ticks. The toolkit does, and drops what it is told while no assistive tool is there.
using Announcer = void (*)(QAccessibleEvent*);
/// Has somebody else tell of ticks; nullptr: the toolkit.
void AnnounceBy(Announcer other);

}  // namespace coinlet
