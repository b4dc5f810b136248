<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi_IN" sourcelanguage="en">
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
            <numerusform>%Ln आइटम प्रति सेकंड</numerusform>
            <numerusform>%Ln आइटम प्रति सेकंड</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln हटाई गई</numerusform>
            <numerusform>%Ln हटाई गईं</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln फ़ाइल चुनी गई</numerusform>
            <numerusform>%Ln फ़ाइलें चुनी गईं</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>कुछ नहीं चुना गया</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln फ़िल्टर से छिपी</numerusform>
            <numerusform>%Ln फ़िल्टर से छिपीं</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>पुनर्प्राप्त करें…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>स्कैन की प्रगति</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>गंतव्य पर खाली %2 में से %1</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>%1 चाहिए, गंतव्य पर केवल %2 खाली</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>%1 में पुनर्प्राप्त करें। दूसरा फ़ोल्डर चुनें…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>पुनर्प्राप्ति का फ़ोल्डर चुनें</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>ऊपर</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>खोज समाप्त करें</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>“%1” %Ln नाम में मिला</numerusform>
            <numerusform>“%1” %Ln नामों में मिला</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>चुनें</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>कई फ़ाइलें चुनें या चयन हटाएँ (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>सभी फ़ोटो चुनें</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>सभी हटाई गई फ़ाइलें चुनें</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>“%1” में सब कुछ चुनें</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>मिला हुआ सब कुछ चुनें</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>चयन उलटें</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>सभी का चयन हटाएँ</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>पूर्ववत करें</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>फिर से करें</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>प्लग-इन SDCardScanContentPlugin प्रोग्राम के पास नहीं है।</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>%1 लोड नहीं हो सका: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 दूसरे प्रकार का प्लग-इन है: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>“%1” नहीं खुल सका: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>कोई प्रोग्राम “%1” नहीं खोलता।</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>कोई भी आकार</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>1 MB तक</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 से 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 से 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>100 MB से अधिक</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>कोई भी तिथि</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>पिछले 7 दिन</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>पिछले 30 दिन</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>पिछला वर्ष</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>एक वर्ष से पुरानी</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>कोई भी प्रकार</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>केवल हटाई गई</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>सब दिखाएँ</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>प्रकार</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>आकार</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>तिथि</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>का के की में से और पर</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>सभी फ़ाइलें</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>फ़ोटो</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>वीडियो</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>ऑडियो</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>दस्तावेज़</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>ईमेल</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>डेटाबेस</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>वेब फ़ाइलें</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>संग्रह</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>अन्य</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>स्कैन रोक दिया गया। जो मिला वह दिखाया गया है।</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln चीज़ पढ़ी नहीं जा सकी, पहली: %1</numerusform>
            <numerusform>%Ln चीज़ें पढ़ी नहीं जा सकीं, पहली: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>नमूना कार्ड नहीं बनाया गया है। कोई फ़ोल्डर, डिस्क इमेज या डिवाइस खोलें।</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>फ़ोल्डर खोलें</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>डिस्क इमेज खोलें</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln फ़ाइल चुनी गई।</numerusform>
            <numerusform>%Ln फ़ाइलें चुनी गईं।</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>%Ln फ़ाइल का चयन हटाया गया।</numerusform>
            <numerusform>%Ln फ़ाइलों का चयन हटाया गया।</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln चयन बदला गया।</numerusform>
            <numerusform>%Ln चयन बदले गए।</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>परिवर्तन पूर्ववत किया गया।</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>परिवर्तन फिर से किया गया।</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>पूर्ववत करने के लिए कुछ नहीं है।</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>फिर से करने के लिए कुछ नहीं है।</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>पूर्ववत करें</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>फिर से करें</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>फ़ाइल में कोई पूर्वावलोकन नहीं है।</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>इस फ़ाइल के लिए पर्याप्त मेमोरी नहीं है।</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>चित्र इतना बड़ा है कि सौंपा नहीं जा सकता।</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>फ़ाइल में कोई मेटाडेटा नहीं है।</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>चित्र खराब है या अज्ञात प्रकार का है।</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>चित्र अपना आकार नहीं बताता।</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>चित्र बहुत बड़ा है: %1 × %2।</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>%1 × %2 के चित्र के लिए पर्याप्त मेमोरी नहीं है।</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>वीडियो खराब है: %1।</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>फ़ाइल में कोई चित्र नहीं है।</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>वीडियो खराब है।</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>वीडियो खराब है या अज्ञात प्रकार का है: %1।</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>वीडियो का कोई फ़्रेम डिकोड नहीं हो सका।</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>प्रोग्राम quarvo-media इसके पास नहीं है: थंबनेल और मेटाडेटा उपलब्ध नहीं हैं।</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>प्रोग्राम %1 शुरू नहीं हो सका: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>प्रोग्राम %1 ठीक से उत्तर नहीं देता।</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>बहुत समय लगा</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>डिकोडर बंद हो गया</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>डिकोडर भटक गया</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>फ़ाइल क्षतिग्रस्त है।</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>फ़ाइल क्षतिग्रस्त है: %1।</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>ऐसी फ़ाइल में पढ़ने योग्य मेटाडेटा नहीं होता।</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>ऐसी फ़ाइल में कोई चित्र नहीं होता।</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>लोड हो रहा है…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>यह चित्र नहीं दिखाया जा सकता।
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %3 में से %2</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>पिछला चित्र</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>अगला चित्र</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>%1 पर जगह नहीं बची।</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>%1 पर पर्याप्त जगह नहीं है: फ़ाइल को %2 चाहिए, %3 खाली है।</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>फ़ाइल नहीं बनाई जा सकी: %1।</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>सामग्री %L2 में से बाइट %L1 पर समाप्त होती है।</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>लिखना विफल रहा: %1।</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 कोई फ़ोल्डर नहीं है।</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>फ़ोल्डर %1 नहीं बनाया जा सका।</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>%1 में लिखा नहीं जा सका: %2।</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>फ़ाइल %1 नहीं बनाई जा सकी: %2।</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>%1 नाम की बहुत अधिक फ़ाइलें हैं।</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%Ln फ़ाइल में से %1</numerusform>
            <numerusform>%Ln फ़ाइलों में से %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%2 में से %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln फ़ाइल %1 में पुनर्प्राप्त हुई।</numerusform>
            <numerusform>%Ln फ़ाइलें %1 में पुनर्प्राप्त हुईं।</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>%Ln फ़ाइल पुनर्प्राप्त नहीं हो सकी।</numerusform>
            <numerusform>%Ln फ़ाइलें पुनर्प्राप्त नहीं हो सकीं।</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>पुनर्प्राप्ति</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>पुनर्प्राप्ति की प्रगति</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>जो फ़ाइलें पुनर्प्राप्त नहीं हो सकीं</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>फ़ोल्डर खोलें</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>हो गया</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>पुनर्प्राप्ति रद्द की गई</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>पुनर्प्राप्ति पूर्ण</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>कुछ फ़ाइलें पुनर्प्राप्त नहीं हो सकीं</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>%1 में पुनर्प्राप्ति जारी</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>यहाँ पुनर्प्राप्त करें</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>पुनर्प्राप्त करने के लिए कुछ नहीं है।</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>रद्द किया गया</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>अंत के आगे पढ़ने का प्रयास</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>मीडिया समय से पहले समाप्त होता है</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 न फ़ोल्डर है, न डिस्क इमेज, न डिस्क।</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 पढ़ा नहीं जा सका: %2।</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 खाली है।</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 डिस्क इमेज होने के लिए बहुत छोटा है।</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 पढ़ा नहीं जा सका।</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>कार्ड अब पढ़ा नहीं जा सकता।</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>फ़ाइल का रिकॉर्ड पढ़ा नहीं जा सका।</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>कार्ड पढ़ा नहीं जा सका: %1।</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>स्कैन के बाद फ़ाइल का रिकॉर्ड बदल गया है।</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>सामग्री %L2 में से बाइट %L1 पर समाप्त होती है।</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>फ़ाइल के बाइट %L1 पर कार्ड पढ़ा नहीं जा सका: %2।</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>उसी जगह एक और हटाई गई फ़ाइल थी; दोनों में से कौन-सी बची है, यह ज्ञात नहीं है।</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>सामग्री का एक भाग दूसरी फ़ाइल से अधिलेखित हो गया है।</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>सामग्री का एक भाग नई फ़ाइल %1 से अधिलेखित हो गया है।</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>कार्ड पर फ़ाइल के स्थानों की सूची खराब है।</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>सामग्री कार्ड के अंत के आगे है।</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>कार्ड अब नहीं बताता कि सामग्री कहाँ है।</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>कार्ड अब फ़ाइल की लंबाई और उसकी सामग्री का स्थान नहीं बताता।</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>फ़ाइल पढ़ी नहीं जा सकी।</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>फ़ोल्डर %1 पढ़ा नहीं जा सका: %2।</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>फ़ोल्डर %1 पूरा पढ़ा नहीं जा सका: %2।</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 स्कैन के दौरान गायब हो गया।</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>फ़ाइल अब वहाँ नहीं है।</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>फ़ाइल नहीं खुल सकी।</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>फ़ाइल नहीं खुल सकी: %1।</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 में पढ़ने योग्य फ़ाइल सिस्टम (FAT, exFAT, NTFS या ext) नहीं है।</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>बिना फ़ोल्डर की हटाई गई फ़ाइलें</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>वॉल्यूम %1 नहीं खुल सका।</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>कार्ड अपने फ़ाइल सिस्टम से पहले समाप्त होता है; फ़ाइलें कटी हो सकती हैं।</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>कार्ड का सबसे ऊपर का फ़ोल्डर पढ़ा नहीं जा सका।</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>कार्ड हर जगह पढ़ा नहीं जा सका: %1।</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 मौजूद नहीं है।</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>वॉल्यूम %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>वॉल्यूम %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>फ़ोल्डर /%1 पढ़ा नहीं जा सका।</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>फ़ोल्डर /%1 बहुत गहरा है और नहीं पढ़ा गया।</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>“%1” खाली है।</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>कार्ड</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>प्रकार के अनुसार</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>स्थान के अनुसार</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>कहाँ खोजें</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 उसी कार्ड पर है जिससे पुनर्प्राप्ति हो रही है। वहाँ लिखने से वह नष्ट हो सकता है जो अभी पुनर्प्राप्त होना है। किसी दूसरी डिस्क पर फ़ोल्डर चुनें।</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 स्कैन किए गए फ़ोल्डर में है। उसके बाहर का फ़ोल्डर चुनें।</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 स्कैन की गई डिस्क इमेज है, फ़ोल्डर नहीं। कोई फ़ोल्डर चुनें।</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>%1 पर पर्याप्त जगह नहीं है: फ़ाइलों को %2 चाहिए, केवल %3 खाली है। दूसरा फ़ोल्डर चुनें या कम फ़ाइलें चुनें।</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln फ़ाइल</numerusform>
            <numerusform>%Ln फ़ाइलें</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln फ़ोल्डर</numerusform>
            <numerusform>%Ln फ़ोल्डर</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>ऐसी फ़ाइल में कोई चित्र नहीं होता।</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>भाषा</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>फ़ोल्डर खोलें…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>डिस्क इमेज खोलें…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>फिर से स्कैन करें</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>स्कैन रोकें</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>नाम से खोजें</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>थंबनेल</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>विवरण सहित सूची</translation>
    </message>
    <message>
        <source>List</source>
        <translation>सूची</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>हल्का या गहरा</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>खोलें…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>स्रोत: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>विवरण से खोजें</translation>
    </message>
</context>
</TS>
