#include "pages.h"

#include "stage.h"

#include <functional>

namespace {

using Interface = SDCardScanContentPluginInterface;

/// The pane rests a moment before it asks its host for anything.
constexpr int PaneRestMs = 260;
constexpr int AnimationMs = 160;

struct Page
{
    const char *name;
    std::function<void(Stage &)> prepare;
};

void finishEmpty(Stage &stage)
{
    stage.view()->setScanState(Interface::ScanStarted);
    stage.view()->updateScanData(&stage.records().nothing);
    stage.view()->setScanState(Interface::ScanFinished);
}

const std::vector<Page> &all()
{
    static const std::vector<Page> pages{
        {"grid",
         [](Stage &stage) {
             stage.showScan(&stage.records().photos, Interface::GridView);
             stage.click(2);
             stage.hover(3);
         }},
        {"grid-kinds",
         [](Stage &stage) {
             stage.showScan(&stage.records().mixed, Interface::GridView);
             stage.click(4);
             stage.click(6, Qt::ShiftModifier);
         }},
        {"grid-band",
         [](Stage &stage) {
             stage.showScan(&stage.records().mixed, Interface::GridView);
             stage.drawBand(1, 8);
         }},
        {"list-band",
         [](Stage &stage) {
             stage.showScan(&stage.records().mixed, Interface::ListWithDetailView);
             stage.drawBand(2, 6);
             Stage::settle(PaneRestMs);
         }},
        {"grid-search",
         [](Stage &stage) {
             stage.showSearch(&stage.records().matches, Records::keyword(), Interface::GridView);
         }},
        {"grid-keyboard",
         [](Stage &stage) {
             stage.showScan(&stage.records().mixed, Interface::GridView);
             stage.focus(QStringLiteral("sizeButton"));
         }},
        {"list-keyboard",
         [](Stage &stage) {
             stage.showScan(&stage.records().photos, Interface::ListWithDetailView);
             stage.click(4);
             stage.focus();
             Stage::settle(PaneRestMs);
         }},
        {"list-pane",
         [](Stage &stage) {
             stage.showScan(&stage.records().photos, Interface::ListWithDetailView);
             stage.click(9);
             stage.hover(3);
             Stage::settle(PaneRestMs);
         }},
        {"list-kinds",
         [](Stage &stage) {
             stage.showScan(&stage.records().mixed, Interface::ListWithDetailView);
             stage.click(0);
             stage.hover(6);
             Stage::settle(PaneRestMs);
         }},
        {"list-search",
         [](Stage &stage) {
             stage.showSearch(&stage.records().matches, Records::keyword(), Interface::ListView);
             stage.click(1);
             stage.hover(3, 4);
         }},
        {"list-links",
         [](Stage &stage) {
             stage.showSearch(&stage.records().matches, Records::keyword(),
                              Interface::ListWithDetailView);
             stage.click(4);
             stage.hover(4, 3);
             Stage::settle(PaneRestMs);
         }},
        {"scanning",
         [](Stage &stage) {
             stage.view()->setScanState(Interface::ScanStarted);
             Stage::settle(AnimationMs);
         }},
        {"no-data", finishEmpty},
        {"loading",
         [](Stage &stage) {
             finishEmpty(stage);
             stage.view()->showLoadingPage(true);
         }},
        {"no-filter",
         [](Stage &stage) {
             stage.filter().minSize = 1;
             finishEmpty(stage);
         }},
        {"search-hint",
         [](Stage &stage) {
             stage.showSearch(&stage.records().nothing, QStringLiteral("holiday"),
                              Interface::GridView);
         }},
        {"ai-search-hint",
         [](Stage &stage) {
             stage.filter().aiSearch = true;
             stage.showSearch(&stage.records().nothing, QStringLiteral("a dog on a beach"),
                              Interface::GridView);
         }},
        {"how-to-find",
         [](Stage &stage) {
             stage.showSearch(&stage.records().nothing, QStringLiteral("holiday"),
                              Interface::GridView);
             stage.followLink();
         }},
        {"menu",
         [](Stage &stage) {
             stage.showScan(&stage.records().photos, Interface::GridView);
             stage.openMenu(8);
         }},
        {"text-menu",
         [](Stage &stage) {
             stage.showScan(&stage.records().photos, Interface::ListWithDetailView);
             stage.click(16);
             stage.askForMenu(QStringLiteral("namelabel"));
         }},
        {"tooltip",
         [](Stage &stage) {
             stage.showScan(&stage.records().photos, Interface::ListWithDetailView);
             stage.click(12);
             stage.askForTooltip(QStringLiteral("namelabel"));
         }},
    };
    return pages;
}

} // namespace

QStringList Pages::names()
{
    QStringList names;
    for (const Page &page : all())
        names.append(QLatin1String(page.name));
    return names;
}

void Pages::prepare(const QString &page, Stage &stage)
{
    stage.tidyUp();
    stage.clear();
    for (const Page &known : all()) {
        if (page == QLatin1String(known.name))
            known.prepare(stage);
    }
    Stage::settle(0);
}
