#pragma once

class QPixmap;

/// \a pixmap for a label or a button, which paints it as it is: between whole scales it is
/// stretched beforehand, smoothly; what they do themselves leaves steps in every slope.
QPixmap screenPixmap(const QPixmap &pixmap);
