#pragma once

class QLabel;
class QString;

/// Shows the picture \a base, a resource path without extension, on \a label in the file for the
/// screen's scale. A missing one is logged and leaves the label without a picture; false then.
bool showHintPicture(QLabel *label, const QString &base);
