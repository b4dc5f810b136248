<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en">
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
            <numerusform>%Ln objekt per sekund</numerusform>
            <numerusform>%Ln objekt per sekund</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln borttagen</numerusform>
            <numerusform>%Ln borttagna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln fil markerad</numerusform>
            <numerusform>%Ln filer markerade</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Inget markerat</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln dold av filtret</numerusform>
            <numerusform>%Ln dolda av filtret</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>Återställ…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Genomsökningens förlopp</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 av %2 ledigt på målet</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>%1 behövs, bara %2 ledigt på målet</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>Återställ till %1. Välj en annan mapp…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>Välj mapp att återställa till</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>Upp</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>Avsluta sökningen</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>”%1” hittades i %Ln namn</numerusform>
            <numerusform>”%1” hittades i %Ln namn</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>Markera</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>Markera eller avmarkera många filer (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>Markera alla foton</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>Markera alla borttagna filer</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>Markera allt i ”%1”</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>Markera allt som hittats</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>Invertera markeringen</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>Avmarkera alla</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>Insticksprogrammet SDCardScanContentPlugin ligger inte bredvid programmet.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>%1 kan inte läsas in: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 är ett insticksprogram av annat slag: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>”%1” kan inte öppnas: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>Inget program öppnar ”%1”.</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>Alla storlekar</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>Upp till 1 MB</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 till 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 till 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>Över 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>Alla datum</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Senaste 7 dagarna</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Senaste 30 dagarna</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Senaste året</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>Äldre än ett år</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>Alla typer</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>Endast borttagna</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Visa allt</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
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
        <translation>en ett och av från i på med</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>Alla filer</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Foton</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videor</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Databaser</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>Webbfiler</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Arkiv</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Övrigt</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>Genomsökningen stoppades. Det som hittades visas.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln sak kunde inte läsas, den första: %1</numerusform>
            <numerusform>%Ln saker kunde inte läsas, den första: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>Exempelkortet har inte skapats. Öppna en mapp, en diskavbild eller en enhet.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>Öppna diskavbild</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln fil markerades.</numerusform>
            <numerusform>%Ln filer markerades.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>%Ln fil avmarkerades.</numerusform>
            <numerusform>%Ln filer avmarkerades.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln markering ändrades.</numerusform>
            <numerusform>%Ln markeringar ändrades.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>Ändringen ångrades.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>Ändringen gjordes om.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Det finns inget att ångra.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Det finns inget att göra om.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>Filen innehåller ingen förhandsvisning.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Minnet räcker inte för den här filen.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>Bilden är för stor för att lämnas över.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>Filen innehåller inga metadata.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>Bilden är skadad eller av okänt slag.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>Bilden anger inte sin storlek.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>Bilden är för stor: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>Minnet räcker inte för en bild på %1 × %2.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>Videon är skadad: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>Filen innehåller ingen bild.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>Videon är skadad.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>Videon är skadad eller av okänt slag: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>Ingen bildruta i videon kan avkodas.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>Programmet quarvo-media ligger inte bredvid det här: det finns inga miniatyrer och inga metadata.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>Programmet %1 kan inte startas: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>Programmet %1 svarar inte som det ska.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>det tog för lång tid</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>avkodaren kraschade</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>avkodaren tappade bort sig</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>Filen är skadad.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>Filen är skadad: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>En sådan fil har inga läsbara metadata.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>En sådan fil innehåller ingen bild.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Läser in…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>Den här bilden kan inte visas.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 av %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Föregående bild</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Nästa bild</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>Det finns inget utrymme kvar på %1.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>Det finns inte tillräckligt med utrymme på %1: filen behöver %2, %3 är ledigt.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>Filen kan inte skapas: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Innehållet slutar vid byte %L1 av %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>Skrivningen misslyckades: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 är ingen mapp.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Mappen %1 kan inte skapas.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>Det går inte att skriva till %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Filen %1 kan inte skapas: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>För många filer har namnet %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 av %Ln fil</numerusform>
            <numerusform>%1 av %Ln filer</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 av %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln fil återställdes till %1.</numerusform>
            <numerusform>%Ln filer återställdes till %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>%Ln fil kunde inte återställas.</numerusform>
            <numerusform>%Ln filer kunde inte återställas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Återställning</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>Återställningens förlopp</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>Filer som inte kunde återställas</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>Återställningen avbröts</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>Återställningen är klar</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>Vissa filer kunde inte återställas</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>Återställer till %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>Återställ till</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Det finns inget att återställa.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>avbruten</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>läsning bortom slutet</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>mediet slutar för tidigt</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 är varken en mapp, en diskavbild eller en disk.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kan inte läsas: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 är tom.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 är för liten för att vara en diskavbild.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kan inte läsas.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>Kortet kan inte längre läsas.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>Filens post kan inte läsas.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>Kortet kan inte läsas: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>Filens post har ändrats sedan genomsökningen.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Innehållet slutar vid byte %L1 av %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>Kortet kan inte läsas vid byte %L1 i filen: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>En annan borttagen fil låg på samma plats; det är okänt vilken av de två som finns kvar.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>En del av innehållet har skrivits över av en annan fil.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>En del av innehållet har skrivits över av den nyare filen %1.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>Listan över filens platser på kortet är skadad.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>Innehållet ligger bortom kortets slut.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>Kortet anger inte längre var innehållet finns.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>Kortet anger inte längre hur lång filen var och var innehållet finns.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Filen kunde inte läsas.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>Mappen %1 kan inte läsas: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>Mappen %1 kunde inte läsas helt: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 försvann under genomsökningen.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Filen finns inte längre kvar.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Filen kan inte öppnas.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Filen kan inte öppnas: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 innehåller inget läsbart filsystem (FAT, exFAT, NTFS eller ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>Borttagna filer utan mapp</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>Volym %1 kunde inte öppnas.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>Kortet slutar före sitt filsystem; filer kan vara avklippta.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>Kortets översta mapp kan inte läsas.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>Kortet kunde inte läsas överallt: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 finns inte.</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volym %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>Volym %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>Mappen /%1 kunde inte läsas.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>Mappen /%1 ligger för djupt och lästes inte.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>”%1” är tom.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>Kort</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>Efter typ</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>Efter plats</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Var du vill leta</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 ligger på kortet som återställs. Att skriva där kan förstöra det som fortfarande går att rädda. Välj en mapp på en annan disk.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 ligger i mappen som genomsöktes. Välj en mapp utanför den.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 är diskavbilden som genomsöktes, inte en mapp. Välj en mapp.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>Det finns inte tillräckligt med utrymme på %1: filerna behöver %2, bara %3 är ledigt. Välj en annan mapp eller markera färre filer.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln fil</numerusform>
            <numerusform>%Ln filer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln mapp</numerusform>
            <numerusform>%Ln mappar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>En sådan fil innehåller ingen bild.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>Öppna mapp…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>Öppna diskavbild…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Sök igenom igen</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>Stoppa genomsökningen</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Sök på namn</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniatyrer</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>Lista med detaljer</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Ljust eller mörkt</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öppna…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Källa: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>Sök på beskrivning</translation>
    </message>
</context>
</TS>
