// The second look of a picture that stands inside a text field.
#pragma once

class QIcon;
class QWidget;

namespace qRVADM {

// A field that is being edited is light in both themes. If the parent of `picture` is a line edit, this
// leaves the light icon of the resources for the control style, which shows it while the field has the
// keyboard. Returns the icon to show now: `icon`, or the light one if the field is being edited. Ids from 0
// down stand for no picture.
QIcon IconInField(QWidget& picture, const QIcon& icon, int id, int selectedId);

}  // namespace qRVADM
