<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
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
            <numerusform>%Ln item a second</numerusform>
            <numerusform>%Ln items a second</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln deleted</numerusform>
            <numerusform>%Ln deleted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln file checked</numerusform>
            <numerusform>%Ln files checked</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Nothing checked</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln hidden by the filter</numerusform>
            <numerusform>%Ln hidden by the filter</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>Recover…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Progress of the scan</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 of %2 free at the target</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>%1 needed, only %2 free at the target</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>Recover to %1. Choose another folder…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>Choose the folder to recover to</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>End the search</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>“%1” found in %Ln name</numerusform>
            <numerusform>“%1” found in %Ln names</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>Check or uncheck many files (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>Check all photos</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>Check all deleted files</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>Check everything in “%1”</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>Check everything found</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>Invert the checks</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>Uncheck all</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>The plug-in SDCardScanContentPlugin is not beside the program.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>%1 cannot be loaded: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 is a plug-in of another kind: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>“%1” cannot be opened: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>No program opens “%1”.</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>Any size</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>Up to 1 MB</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 to 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 to 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>Over 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>Any date</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Last 7 days</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Last 30 days</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Last year</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>Older than a year</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>Any kind</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>Deleted only</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Show everything</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>a an and at from in of on the with</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
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
        <translation>Documents</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Email</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Databases</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>Web files</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archives</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Others</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>The scan was stopped. What it found is shown.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln thing could not be read, the first: %1</numerusform>
            <numerusform>%Ln things could not be read, the first: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>The sample card has not been made. Open a folder, a disk image or a device.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>Open disk image</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln file checked.</numerusform>
            <numerusform>%Ln files checked.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>%Ln file unchecked.</numerusform>
            <numerusform>%Ln files unchecked.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln check changed.</numerusform>
            <numerusform>%Ln checks changed.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>The change was undone.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>The change was made again.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>There is nothing to undo.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>There is nothing to redo.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>There is no preview in the file.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>There is not enough memory for this file.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>The picture is too large to be handed over.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>There is no metadata in the file.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>The picture is broken or of an unknown kind.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>The picture does not say how large it is.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>The picture is too large: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>There is not enough memory for a picture of %1 × %2.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>The video is broken: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>There is no picture in the file.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>The video is broken.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>The video is broken or of an unknown kind: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>No frame of the video can be decoded.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>The program %1 cannot be started: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>The program %1 does not answer as it should.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>it took too long</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>the decoder crashed</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>the decoder lost its way</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>The file is damaged.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>The file is damaged: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>Such a file has no metadata that can be read.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>There is no picture in such a file.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Loading…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>This picture cannot be shown.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 of %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Previous picture</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Next picture</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>There is no room left at %1.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>There is not enough room at %1: the file needs %2, %3 are free.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>The file cannot be created: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>The contents end at byte %L1 of %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>Writing failed: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 is not a folder.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>The folder %1 cannot be created.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>Nothing can be written to %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>The file %1 cannot be created: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>Too many files have the name %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 of %Ln file</numerusform>
            <numerusform>%1 of %Ln files</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 of %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln file recovered to %1.</numerusform>
            <numerusform>%Ln files recovered to %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>%Ln file could not be recovered.</numerusform>
            <numerusform>%Ln files could not be recovered.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recovery</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>Progress of the recovery</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>Files that could not be recovered</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>Recovery cancelled</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>Recovery complete</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>Some files could not be recovered</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>Recovering to %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>Recover to</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>There is nothing to recover.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>cancelled</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>a read past the end</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>the medium ends too early</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 is neither a folder nor a disk image nor a disk.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 cannot be read: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 is empty.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 is too small to be a disk image.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 cannot be read.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>The card cannot be read any more.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>The file&apos;s record cannot be read.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>The card cannot be read: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>The file&apos;s record has changed since the scan.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>The contents end at byte %L1 of %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>The card cannot be read at byte %L1 of the file: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>Another deleted file was in the same place; which of the two is still there is not known.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>A part of the contents has been overwritten by another file.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>A part of the contents has been overwritten by the newer file %1.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>The list of the file&apos;s places on the card is broken.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>The contents lie past the end of the card.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>The card no longer says where the contents are.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>The card no longer says how long the file was and where its contents are.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>The file could not be read.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>The folder %1 cannot be read: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>The folder %1 could not be read whole: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 went away during the scan.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>The file is no longer there.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>The file cannot be opened.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>The file cannot be opened: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>Deleted files without a folder</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>Volume %1 could not be opened.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>The card ends before its file system does; files may be cut off.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>The card&apos;s top folder cannot be read.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>The card could not be read everywhere: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 does not exist.</translation>
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
        <translation>The folder /%1 could not be read.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>The folder /%1 lies too deep and was not read.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>“%1” is empty.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>Card</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>By kind</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>By place</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Where to look</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 lies in the folder that was scanned. Choose a folder outside it.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 is the disk image that was scanned, not a folder. Choose a folder.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln folder</numerusform>
            <numerusform>%Ln folders</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>There is no picture in such a file.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>Open folder…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>Open disk image…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Scan again</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>Stop scanning</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Search by name</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Thumbnails</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>List with details</translation>
    </message>
    <message>
        <source>List</source>
        <translation>List</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Light or dark</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Open…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Source: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>Search by description</translation>
    </message>
</context>
</TS>
