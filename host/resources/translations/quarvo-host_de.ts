<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
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
            <numerusform>%Ln Eintrag pro Sekunde</numerusform>
            <numerusform>%Ln Einträge pro Sekunde</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln gelöscht</numerusform>
            <numerusform>%Ln gelöscht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln Datei ausgewählt</numerusform>
            <numerusform>%Ln Dateien ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln durch den Filter verborgen</numerusform>
            <numerusform>%Ln durch den Filter verborgen</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>Wiederherstellen&#xa0;…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Fortschritt des Scans</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 von %2 frei am Ziel</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>%1 nötig, am Ziel nur %2 frei</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>Wiederherstellen nach %1. Anderen Ordner wählen&#xa0;…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>Zielordner der Wiederherstellung wählen</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>Suche beenden</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>„%1“ in %Ln Namen gefunden</numerusform>
            <numerusform>„%1“ in %Ln Namen gefunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>Viele Dateien aus- oder abwählen (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>Alle Fotos auswählen</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>Alle gelöschten Dateien auswählen</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>Alles in „%1“ auswählen</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>Alles Gefundene auswählen</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>Alles abwählen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>Das Plug-in SDCardScanContentPlugin liegt nicht neben dem Programm.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>%1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 ist ein Plug-in anderer Art: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>„%1“ kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>Kein Programm öffnet „%1“.</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>Jede Größe</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>Bis 1 MB</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 bis 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 bis 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>Über 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>Jedes Datum</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Letzte 12 Monate</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>Älter als ein Jahr</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>Jede Art</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>Nur gelöschte</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Alles anzeigen</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
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
        <translation>der die das den dem des ein eine einen und von vom aus im in am an auf mit</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mails</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Datenbanken</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>Webdateien</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Sonstige</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>Der Scan wurde angehalten. Angezeigt wird, was er gefunden hat.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln Element konnte nicht gelesen werden, das erste: %1</numerusform>
            <numerusform>%Ln Elemente konnten nicht gelesen werden, das erste: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>Die Beispielkarte wurde nicht erstellt. Bitte einen Ordner, ein Datenträgerabbild oder ein Gerät öffnen.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>Datenträgerabbild öffnen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln Datei ausgewählt.</numerusform>
            <numerusform>%Ln Dateien ausgewählt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>%Ln Datei abgewählt.</numerusform>
            <numerusform>%Ln Dateien abgewählt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln Auswahl geändert.</numerusform>
            <numerusform>%Ln Auswahlen geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>Die Änderung wurde rückgängig gemacht.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>Die Änderung wurde wiederholt.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>Die Datei enthält keine Vorschau.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Für diese Datei reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>Das Bild ist zu groß, um übergeben zu werden.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>Die Datei enthält keine Metadaten.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>Das Bild ist beschädigt oder von unbekannter Art.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>Das Bild gibt seine Größe nicht an.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>Das Bild ist zu groß: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>Für ein Bild von %1 × %2 reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>Das Video ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>Die Datei enthält kein Bild.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>Das Video ist beschädigt.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>Das Video ist beschädigt oder von unbekannter Art: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>Kein Bild des Videos lässt sich dekodieren.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>Das Programm quarvo-media liegt nicht neben diesem: Es gibt keine Vorschaubilder und keine Metadaten.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>Das Programm %1 kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>Das Programm %1 antwortet nicht wie erwartet.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>es hat zu lange gedauert</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>der Dekoder ist abgestürzt</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>der Dekoder ist aus dem Tritt geraten</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>Die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>Die Datei ist beschädigt: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>Solche Dateien haben keine lesbaren Metadaten.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Solche Dateien enthalten kein Bild.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen&#xa0;…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>Dieses Bild kann nicht angezeigt werden.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 von %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Voriges Bild</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Nächstes Bild</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>In %1 ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>In %1 ist nicht genug Platz: Die Datei braucht %2, frei sind %3.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>Die Datei kann nicht angelegt werden: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Der Inhalt endet bei Byte %L1 von %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>Schreiben fehlgeschlagen: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>In %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Die Datei %1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>Zu viele Dateien heißen %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 von %Ln Datei</numerusform>
            <numerusform>%1 von %Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln Datei nach %1 wiederhergestellt.</numerusform>
            <numerusform>%Ln Dateien nach %1 wiederhergestellt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>%Ln Datei konnte nicht wiederhergestellt werden.</numerusform>
            <numerusform>%Ln Dateien konnten nicht wiederhergestellt werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>Fortschritt der Wiederherstellung</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>Dateien, die nicht wiederhergestellt werden konnten</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>Wiederherstellung abgebrochen</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>Wiederherstellung abgeschlossen</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>Einige Dateien konnten nicht wiederhergestellt werden</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>Wiederherstellung nach %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>Wiederherstellen nach</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Es gibt nichts wiederherzustellen.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>Lesen über das Ende hinaus</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>der Datenträger endet zu früh</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 ist weder ein Ordner noch ein Datenträgerabbild noch ein Datenträger.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 ist für ein Datenträgerabbild zu klein.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>Die Karte ist nicht mehr lesbar.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>Der Eintrag der Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>Die Karte kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>Der Eintrag der Datei hat sich seit dem Scan geändert.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Der Inhalt endet bei Byte %L1 von %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>Die Karte kann bei Byte %L1 der Datei nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>An derselben Stelle lag noch eine gelöschte Datei; welche von beiden noch da ist, ist unbekannt.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>Ein Teil des Inhalts wurde von einer anderen Datei überschrieben.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>Ein Teil des Inhalts wurde von der neueren Datei %1 überschrieben.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>Die Liste der Orte der Datei auf der Karte ist beschädigt.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>Der Inhalt liegt hinter dem Ende der Karte.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>Die Karte gibt nicht mehr an, wo der Inhalt liegt.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>Die Karte gibt nicht mehr an, wie lang die Datei war und wo ihr Inhalt liegt.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Die Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>Der Ordner %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>Der Ordner %1 konnte nicht ganz gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 ist während des Scans verschwunden.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Die Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Die Datei kann nicht geöffnet werden: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 enthält kein lesbares Dateisystem (FAT, exFAT, NTFS oder ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>Gelöschte Dateien ohne Ordner</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>Volume %1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>Die Karte endet vor ihrem Dateisystem; Dateien können abgeschnitten sein.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>Der oberste Ordner der Karte kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>Die Karte konnte nicht überall gelesen werden: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 gibt es nicht.</translation>
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
        <translation>Der Ordner /%1 konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>Der Ordner /%1 liegt zu tief und wurde nicht gelesen.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>„%1“ ist leer.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>Nach Art</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>Nach Ort</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Suchort</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 liegt auf der Karte, deren Dateien wiederhergestellt werden. Dort zu schreiben könnte zerstören, was noch zu retten ist. Bitte einen Ordner auf einem anderen Datenträger wählen.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 liegt im gescannten Ordner. Bitte einen Ordner außerhalb wählen.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 ist das gescannte Datenträgerabbild und kein Ordner. Bitte einen Ordner wählen.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>In %1 ist nicht genug Platz: Die Dateien brauchen %2, frei sind nur %3. Bitte einen anderen Ordner oder weniger Dateien wählen.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln Ordner</numerusform>
            <numerusform>%Ln Ordner</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Solche Dateien enthalten kein Bild.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>Ordner öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>Datenträgerabbild öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Erneut scannen</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>Scan anhalten</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturen</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>Liste mit Details</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Hell oder dunkel</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Quelle: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>Nach Beschreibung suchen</translation>
    </message>
</context>
</TS>
