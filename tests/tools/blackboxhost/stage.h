#pragma once

#include "card.h"
#include "ear.h"
#include "side.h"

#include <sdcardscancontentplugininterface.h>

using View = SDCardScanContentPluginInterface;

/// The host's window with both frames, the card that they show, and what the plug-in says.
class Stage
{
public:
    /// \a plugin is the loaded object, not owned.
    explicit Stage(QObject *plugin);
    ~Stage();

    /// The window with one of the frames in it.
    void bring(const Side &side);
    /// A finished scan in the light grid, a search with three results, nothing checked, chosen or
    /// heard.
    void begin();

    View *view;
    Card card;
    QWidget window;
    Side scan;
    Side search;
    Ear ear;
};
