<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>BottomBar</name>
    <message>
        <source>%1, %2</source>
        <comment>files and folders</comment>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln item(s) a second</source>
        <translation>
            <numerusform>%Ln item per seconde</numerusform>
            <numerusform>%Ln items per seconde</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln verwijderd</numerusform>
            <numerusform>%Ln verwijderd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln bestand aangevinkt</numerusform>
            <numerusform>%Ln bestanden aangevinkt</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Niets aangevinkt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln verborgen door het filter</numerusform>
            <numerusform>%Ln verborgen door het filter</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>Herstellen…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Voortgang van de scan</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 van %2 vrij op de bestemming</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>%1 nodig, slechts %2 vrij op de bestemming</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>Herstellen naar %1. Een andere map kiezen…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>De map kiezen om naar te herstellen</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>Zoeken beëindigen</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>‘%1’ gevonden in %Ln naam</numerusform>
            <numerusform>‘%1’ gevonden in %Ln namen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>Aanvinken</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>Veel bestanden aan- of uitvinken (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>Alle foto’s aanvinken</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>Alle verwijderde bestanden aanvinken</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>Alles in ‘%1’ aanvinken</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>Alles wat gevonden is aanvinken</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>Vinkjes omkeren</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>Alles uitvinken</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>De plug-in SDCardScanContentPlugin staat niet naast het programma.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>%1 kan niet worden geladen: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 is een plug-in van een andere soort: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>‘%1’ kan niet worden geopend: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>Geen programma opent ‘%1’.</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>Elke grootte</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>Tot 1 MB</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 tot 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 tot 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>Meer dan 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>Elke datum</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Laatste 7 dagen</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Laatste 30 dagen</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Afgelopen jaar</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>Ouder dan een jaar</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>Elke soort</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>Alleen verwijderd</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Alles tonen</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>de het een en van uit in op met</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>Alle bestanden</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Foto’s</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Video’s</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenten</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Databases</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>Webbestanden</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archieven</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Overige</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>De scan is gestopt. Wat gevonden is, wordt getoond.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln onderdeel kon niet worden gelezen, het eerste: %1</numerusform>
            <numerusform>%Ln onderdelen konden niet worden gelezen, het eerste: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>De voorbeeldkaart is niet gemaakt. Open een map, een schijfkopie of een apparaat.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>Schijfkopie openen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln bestand aangevinkt.</numerusform>
            <numerusform>%Ln bestanden aangevinkt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>%Ln bestand uitgevinkt.</numerusform>
            <numerusform>%Ln bestanden uitgevinkt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln vinkje gewijzigd.</numerusform>
            <numerusform>%Ln vinkjes gewijzigd.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>De wijziging is ongedaan gemaakt.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>De wijziging is opnieuw uitgevoerd.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Er is niets ongedaan te maken.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Er is niets opnieuw uit te voeren.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>Het bestand bevat geen voorbeeld.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Er is niet genoeg geheugen voor dit bestand.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>De afbeelding is te groot om door te geven.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>Het bestand bevat geen metagegevens.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>De afbeelding is beschadigd of van een onbekende soort.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>De afbeelding vermeldt haar afmetingen niet.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>De afbeelding is te groot: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>Er is niet genoeg geheugen voor een afbeelding van %1 × %2.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>De video is beschadigd: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>Het bestand bevat geen afbeelding.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>De video is beschadigd.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>De video is beschadigd of van een onbekende soort: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>Geen enkel beeld van de video kan worden gedecodeerd.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>Het programma quarvo-media staat niet naast dit programma: er zijn geen miniaturen en geen metagegevens.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>Het programma %1 kan niet worden gestart: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>Het programma %1 antwoordt niet zoals het hoort.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>het duurde te lang</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>de decoder is vastgelopen</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>de decoder is de weg kwijt</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>Het bestand is beschadigd.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>Het bestand is beschadigd: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>Zo’n bestand heeft geen leesbare metagegevens.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Zo’n bestand bevat geen afbeelding.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Laden…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>Deze afbeelding kan niet worden getoond.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 van %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Vorige afbeelding</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Volgende afbeelding</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>Er is geen ruimte meer op %1.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>Er is niet genoeg ruimte op %1: het bestand heeft %2 nodig, %3 is vrij.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>Het bestand kan niet worden gemaakt: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>De inhoud eindigt bij byte %L1 van %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>Schrijven mislukt: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 is geen map.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>De map %1 kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>Er kan niet naar %1 worden geschreven: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Het bestand %1 kan niet worden gemaakt: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>Te veel bestanden heten %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 van %Ln bestand</numerusform>
            <numerusform>%1 van %Ln bestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 van %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln bestand hersteld naar %1.</numerusform>
            <numerusform>%Ln bestanden hersteld naar %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>%Ln bestand kon niet worden hersteld.</numerusform>
            <numerusform>%Ln bestanden konden niet worden hersteld.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Herstel</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>Voortgang van het herstel</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>Bestanden die niet hersteld konden worden</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>Herstel geannuleerd</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>Herstel voltooid</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>Sommige bestanden konden niet worden hersteld</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>Herstellen naar %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>Herstellen naar</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Er is niets te herstellen.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>lezen voorbij het einde</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>het medium eindigt te vroeg</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 is geen map, geen schijfkopie en geen schijf.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kan niet worden gelezen: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 is leeg.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 is te klein om een schijfkopie te zijn.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>De kaart kan niet meer worden gelezen.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>De vermelding van het bestand kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>De kaart kan niet worden gelezen: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>De vermelding van het bestand is sinds de scan gewijzigd.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>De inhoud eindigt bij byte %L1 van %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>De kaart kan bij byte %L1 van het bestand niet worden gelezen: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>Op dezelfde plaats stond nog een verwijderd bestand; welk van beide er nog is, is niet bekend.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>Een deel van de inhoud is overschreven door een ander bestand.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>Een deel van de inhoud is overschreven door het nieuwere bestand %1.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>De lijst met plaatsen van het bestand op de kaart is beschadigd.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>De inhoud ligt voorbij het einde van de kaart.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>De kaart vermeldt niet meer waar de inhoud staat.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>De kaart vermeldt niet meer hoe lang het bestand was en waar de inhoud staat.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Het bestand kon niet worden gelezen.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>De map %1 kan niet worden gelezen: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>De map %1 kon niet helemaal worden gelezen: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 is tijdens de scan verdwenen.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Het bestand is er niet meer.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Het bestand kan niet worden geopend.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Het bestand kan niet worden geopend: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 bevat geen leesbaar bestandssysteem (FAT, exFAT, NTFS of ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>Verwijderde bestanden zonder map</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>Volume %1 kon niet worden geopend.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>De kaart eindigt eerder dan haar bestandssysteem; bestanden kunnen afgebroken zijn.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>De hoofdmap van de kaart kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>De kaart kon niet overal worden gelezen: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 bestaat niet.</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volume %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>Volume %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>De map /%1 kon niet worden gelezen.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>De map /%1 ligt te diep en is niet gelezen.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>‘%1’ is leeg.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>Kaart</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>Op soort</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>Op plaats</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Waar te zoeken</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 staat op de kaart die wordt hersteld. Daar schrijven kan vernietigen wat nog te herstellen is. Kies een map op een andere schijf.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 ligt in de gescande map. Kies een map daarbuiten.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 is de gescande schijfkopie, geen map. Kies een map.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>Er is niet genoeg ruimte op %1: de bestanden hebben %2 nodig, slechts %3 is vrij. Kies een andere map of vink minder bestanden aan.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln bestand</numerusform>
            <numerusform>%Ln bestanden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln map</numerusform>
            <numerusform>%Ln mappen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Zo’n bestand bevat geen afbeelding.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>Map openen…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>Schijfkopie openen…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Opnieuw scannen</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>Scan stoppen</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Zoeken op naam</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturen</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>Lijst met details</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lijst</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Licht of donker</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Openen…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Bron: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>Zoeken op beschrijving</translation>
    </message>
</context>
</TS>
