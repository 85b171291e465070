<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ka">
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;გაუქმება</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;გამეორება</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>ამო&amp;ჭრა</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;კოპირება</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;ჩასმა</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>წაშლა</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>ყველაფრის მონიშვნა</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;გაუქმება</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;გამეორება</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>ამო&amp;ჭრა</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;კოპირება</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;ჩასმა</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>წაშლა</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>ყველაფრის მონიშვნა</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>ბმულის &amp;მისამართის კოპირება</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>კარგი</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>კარგი</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>შენახვა</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>ყველას შენახვა</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>გახსნა</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;დიახ</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>დიახ &amp;ყველასთვის</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;არა</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>ა&amp;რა ყველასთვის</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>შეწყვეტა</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>თავიდან ცდა</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>იგნორირება</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>დახურვა</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>გაუქმება</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>უარყოფა</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>დახმარება</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>გამოყენება</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>ჩამოყრა</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>ნაგულისხმევის აღდგენა</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>დეტალების ჩვენება...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>დეტალების დამალვა...</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>ყველაფრის &amp;მონიშვნა</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>ნაბიჯი &amp;ზემოთ</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>ნაბიჯი &amp;ქვემოთ</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>აქ გადახვევა</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>მარცხენა კიდე</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>თავში</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>მარჯვენა კიდე</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>ბოლოში</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>გვერდით მარცხნივ</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>გვერდით ზემოთ</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>გვერდით მარჯვნივ</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>გვერდით ქვემოთ</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>მარცხნივ გადახვევა</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>ზემოთ გადახვევა</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>მარჯვნივ გადახვევა</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>ქვემოთ გადახვევა</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>მდებარეობა:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>ფაილის &amp;სახელი:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>ფაილის ტიპი:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;გახსნა</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;შენახვა</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>გახსნა</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>შენახვა როგორც</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>უკან</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>წინ</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>უკან დაბრუნება</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>წინ გადასვლა</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>ზედა საქაღალდე</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>ზედა საქაღალდეში გადასვლა</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>ახალი საქაღალდის შექმნა</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>ახალი საქაღალდის შექმნა</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>ახალი საქაღალდე</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;ახალი საქაღალდე</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>სია</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>დეტალური ხედი</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>სიის ხედზე გადართვა</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>დეტალურ ხედზე გადართვა</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>ყველა ფაილი (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>ყველა ფაილი (*)</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>საქაღალდე:</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>გვერდითი პანელი</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>ადგილები და სანიშნეები</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>ბოლო ადგილები</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;არჩევა</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;წაშლა</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;გადარქმევა</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>დამალული ფაილების &amp;ჩვენება</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>წაშლა</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>ამოშლა</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>საქაღალდე</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ფაილი</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ფაილები</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>საქაღალდეები</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>უცნობი</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 ფაილი</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>ფაილების საქაღალდე</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>ჩემი კომპიუტერი</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 უკვე არსებობს.
ჩავანაცვლოთ?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete '%1'?</source>
        <translation>ნამდვილად წავშალოთ „%1“?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>საქაღალდის წაშლა ვერ მოხერხდა.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>სახელი</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>ზომა</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>ტიპი</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>სახე</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>შეცვლის თარიღი</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>კომპიუტერი</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>ჩემი კომპიუტერი</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>ფაილის არასწორი სახელი</translation>
    </message>
</context>
</TS>
