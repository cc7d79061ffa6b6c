<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_AE" sourcelanguage="en">
<context>
    <name>AboutScreen</name>
    <message>
        <source>About</source>
        <translation>حول البرنامج</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>المعرض</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>عناصر التحكم</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>Renderer</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>الخط</translation>
    </message>
    <message>
        <source>Pictures and texts</source>
        <translation>الصور والنصوص</translation>
    </message>
    <message>
        <source>Icons, pictures and logos were drawn for this project. They and the texts of the own guide and catalogue have its licence. What comes from other files belongs to their authors.</source>
        <translation>رُسمت الأيقونات والصور والشعارات لهذا المشروع، وتسري رخصته عليها وعلى نصوص الدليل والفهرس الخاصين به. أما ما يأتي من ملفات أخرى فهو لأصحابها.</translation>
    </message>
    <message>
        <source>The gallery brings no fonts; it uses those of the device.</source>
        <translation>لا يتضمن المعرض خطوطًا، بل يستخدم خطوط الجهاز.</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>الرخصة</translation>
    </message>
    <message>
        <source>Scroll</source>
        <translation>تمرير</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>%1, built with %2</source>
        <translation>%1، بُني باستخدام %2</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>برمجي</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
</context>
<context>
    <name>BusyIndicator</name>
    <message>
        <source>Please wait</source>
        <translation>يرجى الانتظار</translation>
    </message>
</context>
<context>
    <name>ChannelFacts</name>
    <message>
        <source>Nothing is known of what is on</source>
        <translation>لا تتوفر معلومات عما يعرض الآن</translation>
    </message>
</context>
<context>
    <name>ChannelsScreen</name>
    <message>
        <source>Channels</source>
        <translation>القنوات</translation>
    </message>
    <message>
        <source>There are no channels</source>
        <translation>لا توجد قنوات</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>المجموعة</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>القناة</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>مشاهدة</translation>
    </message>
    <message>
        <source>No such channel</source>
        <translation>لا توجد قناة بهذا الرقم</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>خروج</translation>
    </message>
</context>
<context>
    <name>CircleProgressBar</name>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
</context>
<context>
    <name>ComponentEditorList</name>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
</context>
<context>
    <name>ComponentHints</name>
    <message>
        <source>The line was copied</source>
        <translation>نُسخ السطر</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>العنصر</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try out</source>
        <translation>التجربة</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Use the control</source>
        <translation>استخدام العنصر</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Leave the control</source>
        <translation>مغادرة العنصر</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>العناصر</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>تبديل</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>إعادة ضبط</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
</context>
<context>
    <name>ComponentPageList</name>
    <message>
        <source>Controls</source>
        <translation>العناصر</translation>
    </message>
</context>
<context>
    <name>ComponentsScreen</name>
    <message>
        <source>Components</source>
        <translation>المكوّنات</translation>
    </message>
</context>
<context>
    <name>ComponentStage</name>
    <message>
        <source>What is typed</source>
        <translation>النص المكتوب</translation>
    </message>
</context>
<context>
    <name>DetailScreen</name>
    <message>
        <source>Reminder is set</source>
        <translation>التذكير مفعّل</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>ذكّرني</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>شاهد</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>In favourites</source>
        <translation>في المفضلة</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>إضافة إلى المفضلة</translation>
    </message>
    <message>
        <source>Trailer</source>
        <translation>الإعلان الترويجي</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>دليل البرامج</translation>
    </message>
    <message>
        <source>Like</source>
        <translation>أعجبني</translation>
    </message>
    <message>
        <source>Episodes</source>
        <translation>الحلقات</translation>
    </message>
</context>
<context>
    <name>DetailsOverlay</name>
    <message>
        <source>Channel</source>
        <translation>القناة</translation>
    </message>
    <message>
        <source>Read on</source>
        <translation>متابعة القراءة</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>مشاهدة</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>من البداية</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>gallery::ComponentValues</name>
    <message>
        <source>Default</source>
        <translation>افتراضي</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>فارغ</translation>
    </message>
</context>
<context>
    <name>GroupTabs</name>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
</context>
<context>
    <name>GuideScreen</name>
    <message>
        <source>There are no channels in this guide</source>
        <translation>لا توجد قنوات في هذا الدليل</translation>
    </message>
    <message>
        <source>No programmes on this day</source>
        <translation>لا توجد برامج في هذا اليوم</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>القناة</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>On now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>dddd, d MMMM</source>
        <extracomment>Weekday, day and month without the year, in the form that QLocale::toString() takes</extracomment>
        <translation>dddd، d MMMM</translation>
    </message>
    <message>
        <source>The guide is not complete: %1</source>
        <extracomment>%1 says what is wrong, and where in the file</extracomment>
        <translation>الدليل غير مكتمل: %1</translation>
    </message>
    <message>
        <source>ddd, d MMM</source>
        <extracomment>As &quot;dddd, d MMMM&quot;, but short</extracomment>
        <translation>ddd، d MMM</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>GREEN</source>
        <comment>a key of the remote control</comment>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Programmes</source>
        <translation>البرامج</translation>
    </message>
    <message>
        <source>INFO</source>
        <comment>a key of the remote control</comment>
        <translation>INFO</translation>
    </message>
    <message>
        <source>Reminders: %1</source>
        <extracomment>%1 names the file and says what is wrong</extracomment>
        <translation>التذكيرات: %1</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>خروج</translation>
    </message>
</context>
<context>
    <name>HomeScreen</name>
    <message>
        <source>Press BACK again to leave</source>
        <translation>اضغط «رجوع» مرة أخرى للخروج</translation>
    </message>
    <message>
        <source>There is nothing on TV now, and the catalogue is empty</source>
        <translation>لا شيء يُعرض على التلفاز الآن، والقائمة فارغة</translation>
    </message>
    <message>
        <source>Now on TV</source>
        <translation>يُعرض الآن</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>أفلام</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>مسلسلات</translation>
    </message>
    <message>
        <source>Continue watching</source>
        <translation>متابعة المشاهدة</translation>
    </message>
</context>
<context>
    <name>Keyboard</name>
    <message>
        <source>Keyboard</source>
        <translation>لوحة المفاتيح</translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
    <message>
        <source>Text field</source>
        <translation>حقل نص</translation>
    </message>
</context>
<context>
    <name>LoadingView</name>
    <message>
        <source>Reading the guide…</source>
        <translation>جارٍ قراءة الدليل…</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Main menu</source>
        <translation>القائمة الرئيسية</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>دليل البرامج</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>القنوات</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>البحث</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>المكوّنات</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
</context>
<context>
    <name>MediaItem</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a day (&quot;Tomorrow&quot;), %2 a time: &quot;Tomorrow, 20:15&quot;</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 and %2 are the times of start and stop. A language that is read from the right has its marks (U+200F) around the dash, or the times change places where there is no other text.</extracomment>
        <translation>%1 ‏–‏ %2</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>Length of a film: minutes</extracomment>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>Length of a film: hours and minutes</extracomment>
        <translation>%1 س %2 د</translation>
    </message>
    <message>
        <source>Season %1, episode %2</source>
        <extracomment>%1 is the season&apos;s number, %2 the episode&apos;s</extracomment>
        <translation>الموسم %1، الحلقة %2</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1 is how much is left of a film that was begun: &quot;12 min&quot;</extracomment>
        <translation>بقي %1</translation>
    </message>
    <message>
        <source>There is no film to play in this gallery.</source>
        <translation>لا يوجد في هذا المعرض فيلم لتشغيله.</translation>
    </message>
    <message>
        <source>This channel is locked</source>
        <translation>هذه القناة مقفلة</translation>
    </message>
</context>
<context>
    <name>PlayerButtons</name>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>من البداية</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>المفضلة</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>دليل البرامج</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>This channel is locked</source>
        <translation>هذه القناة مقفلة</translation>
    </message>
    <message>
        <source>Programmes</source>
        <translation>البرامج</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>القناة</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>إجراءات</translation>
    </message>
    <message>
        <source>There is nothing on now</source>
        <translation>لا شيء يُعرض الآن</translation>
    </message>
    <message>
        <source>There are no channels to watch</source>
        <translation>لا توجد قنوات للمشاهدة</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>غدًا</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>%1, %2 – %3</source>
        <extracomment>%1 is a day (&quot;Today&quot;), %2 and %3 are the times of start and stop: &quot;Today, 20:00 – 20:30&quot;</extracomment>
        <translation>%1، %2 – %3</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>%1 behind live</source>
        <extracomment>%1 is how long ago it was sent what is watched: &quot;12 min&quot;</extracomment>
        <translation>متأخر عن البث بـ %1</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>إجراء</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
</context>
<context>
    <name>PlayingProgrammes</name>
    <message>
        <source>This channel has no programme guide</source>
        <translation>لا يوجد دليل برامج لهذه القناة</translation>
    </message>
</context>
<context>
    <name>Programme</name>
    <message>
        <source>Untitled</source>
        <extracomment>A programme whose title the guide does not tell</extracomment>
        <translation>بلا عنوان</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>NOW_IN_LIVE</source>
        <extracomment>Label on a programme that is on air</extracomment>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>WATCH_UNAVAILABLE</source>
        <extracomment>Status of a programme that cannot be watched</extracomment>
        <translation>المشاهدة غير متاحة</translation>
    </message>
    <message>
        <source>LIVE_SOON</source>
        <extracomment>Status of a programme that is to come</extracomment>
        <translation>يُعرض قريبًا</translation>
    </message>
    <message>
        <source>ADD_REMINDER</source>
        <extracomment>Action: be reminded of a programme</extracomment>
        <translation>ذكّرني</translation>
    </message>
    <message>
        <source>DELETE_REMINDER</source>
        <extracomment>Action: no longer be reminded of a programme</extracomment>
        <translation>إلغاء التذكير</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <extracomment>On the channel that plays now</extracomment>
        <translation>يُعرض الآن</translation>
    </message>
</context>
<context>
    <name>ScreenHeader</name>
    <message>
        <source>TV guide</source>
        <translation>دليل البرامج</translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Scroll bar</source>
        <translation>شريط التمرير</translation>
    </message>
</context>
<context>
    <name>ScrolledGridView</name>
    <message>
        <source>Grid</source>
        <translation>شبكة</translation>
    </message>
</context>
<context>
    <name>ScrolledListView</name>
    <message>
        <source>List</source>
        <translation>قائمة</translation>
    </message>
</context>
<context>
    <name>SearchHints</name>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>YELLOW</source>
        <comment>a key of the remote control</comment>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>Favourite channel</source>
        <translation>القناة إلى المفضلة</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>إلى المفضلة</translation>
    </message>
    <message>
        <source>CH −</source>
        <comment>a key of the remote control</comment>
        <translation>CH −</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>النتائج</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>خروج</translation>
    </message>
</context>
<context>
    <name>SearchResults</name>
    <message>
        <source>Results</source>
        <translation>النتائج</translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Search</source>
        <translation>البحث</translation>
    </message>
    <message>
        <source>Programmes, films, series</source>
        <translation>برامج وأفلام ومسلسلات</translation>
    </message>
    <message>
        <source>Type the name of a programme, a film or a series</source>
        <translation>اكتب اسم برنامج أو فيلم أو مسلسل</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>جارٍ البحث…</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <extracomment>%1 is what the viewer has typed</extracomment>
        <translation>لا توجد نتائج للبحث عن «%1»</translation>
    </message>
</context>
<context>
    <name>SeriesScreen</name>
    <message>
        <source>There are no episodes yet</source>
        <translation>لا توجد حلقات بعد</translation>
    </message>
    <message>
        <source>d</source>
        <extracomment>Day of the month, alone in a line above the month, in the form that QLocale::toString() takes</extracomment>
        <translation>d</translation>
    </message>
    <message>
        <source>MMMM</source>
        <extracomment>The month below the day, in the form that QLocale::toString() takes</extracomment>
        <translation>MMMM</translation>
    </message>
    <message>
        <source>Viewed</source>
        <translation>تمت المشاهدة</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>الموسم %1</translation>
    </message>
    <message>
        <source>Specials</source>
        <translation>حلقات خاصة</translation>
    </message>
    <message>
        <source>Opening “%1”…</source>
        <extracomment>%1 is an episode&apos;s title</extracomment>
        <translation>جارٍ فتح «%1»…</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>Day, month and year, in the form that QLocale::toString() takes</extracomment>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>This episode comes out on %1</source>
        <extracomment>%1 is a date</extracomment>
        <translation>تصدر هذه الحلقة في %1</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>الموسم</translation>
    </message>
    <message>
        <source>Episodes</source>
        <translation>الحلقات</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation>الحلقة</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>مشاهدة</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>خروج</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتحة</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>تباين عالٍ</translation>
    </message>
    <message>
        <source>Copper</source>
        <translation>نحاسية</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>قياسية</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>حجم النص</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Rounded corners</source>
        <translation>زوايا مستديرة</translation>
    </message>
    <message>
        <source>Tiles grow smoothly</source>
        <translation>تكبر المربعات بسلاسة</translation>
    </message>
    <message>
        <source>Tiles and menu scroll smoothly</source>
        <translation>تتحرك المربعات والقائمة بسلاسة</translation>
    </message>
    <message>
        <source>The home screen scrolls smoothly</source>
        <translation>تتحرك الشاشة الرئيسية بسلاسة</translation>
    </message>
    <message>
        <source>Pictures and menu edges fade in</source>
        <translation>تظهر الصور وحواف القائمة تدريجيًا</translation>
    </message>
    <message>
        <source>Menu and details slide in</source>
        <translation>تنزلق القائمة والتفاصيل إلى الداخل</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>الشاشة</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>الحركة</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>This could not be stored: it holds until you leave</source>
        <translation>تعذّر الحفظ: يسري حتى الخروج</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>اختيار</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>اختيار</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>خروج</translation>
    </message>
</context>
<context>
    <name>stbgeneric::KeyboardPad</name>
    <message>
        <source>Space</source>
        <extracomment>On a key of the on-screen keyboard</extracomment>
        <translation>مسافة</translation>
    </message>
    <message>
        <source>Backspace</source>
        <extracomment>A key of the on-screen keyboard</extracomment>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>المؤشر إلى اليسار</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>المؤشر إلى اليمين</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>On a key of the on-screen keyboard</extracomment>
        <translation>تبديل</translation>
    </message>
    <message>
        <source>Caps lock</source>
        <translation>تثبيت الحروف</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>حروف</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>رموز</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>اللغة: %1</translation>
    </message>
</context>
<context>
    <name>stbui::EpgListModel</name>
    <message>
        <source>REMINDER_WAS_SET</source>
        <extracomment>Status: a reminder is set for this programme</extracomment>
        <translation>تم ضبط التذكير</translation>
    </message>
    <message>
        <source>ON</source>
        <extracomment>Before the time at which a programme starts: &quot;At 20:05&quot;</extracomment>
        <translation>الساعة</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <extracomment>Status: this programme plays now</extracomment>
        <translation>يُعرض الآن</translation>
    </message>
</context>
</TS>
