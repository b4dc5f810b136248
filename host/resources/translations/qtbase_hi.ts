<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi_IN" sourcelanguage="en">
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>पूर्ववत करें (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें (&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>काटें (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>चिपकाएँ (&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सभी चुनें</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>यहाँ देखें:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>पीछे</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>पीछे जाएँ</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>आगे</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>आगे जाएँ</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>मूल फ़ोल्डर</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>मूल फ़ोल्डर पर जाएँ</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>नया फ़ोल्डर बनाएँ</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>नया फ़ोल्डर बनाएँ</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>सूची दृश्य</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>सूची दृश्य में बदलें</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>विवरण दृश्य</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>विवरण दृश्य में बदलें</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>साइडबार</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>स्थानों और बुकमार्क की सूची</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>फ़ाइलें</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>फ़ाइल प्रकार:</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>नाम बदलें (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>हटाएँ (&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>छिपी फ़ाइलें दिखाएँ (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>नया फ़ोल्डर (&amp;N)</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>फ़ोल्डर:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>फ़ाइल का नाम (&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>खोलें (&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>चुनें (&amp;C)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>सभी फ़ाइलें (*)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>नया फ़ोल्डर</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>हाल के स्थान</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
फ़ोल्डर नहीं मिला।
कृपया जाँचें कि फ़ोल्डर का नाम सही है।</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
फ़ाइल नहीं मिली।
कृपया जाँचें कि फ़ाइल का नाम सही है।</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>नाम</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>आकार</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>प्रकार</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>संशोधन तिथि</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>कंप्यूटर</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>हाँ (&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>नहीं (&amp;N)</translation>
    </message>
</context>
</TS>
