<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>NOW_IN_LIVE</source>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>WATCH_UNAVAILABLE</source>
        <translation>المشاهدة غير متاحة</translation>
    </message>
    <message>
        <source>LIVE_SOON</source>
        <translation>يُعرض قريبًا</translation>
    </message>
    <message>
        <source>ADD_REMINDER</source>
        <translation>ذكّرني</translation>
    </message>
    <message>
        <source>DELETE_REMINDER</source>
        <translation>إلغاء التذكير</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <translation>يُعرض الآن</translation>
    </message>
</context>
<context>
    <name>stbui::EpgListModel</name>
    <message>
        <source>REMINDER_WAS_SET</source>
        <translation>تم ضبط التذكير</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>الساعة</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <translation>يُعرض الآن</translation>
    </message>
</context>
<context>
    <name>gallery::Application</name>
    <message>
        <source>TV guide</source>
        <translation>دليل البرامج</translation>
    </message>
</context>
<context>
    <name>gallery::GuideController</name>
    <message>
        <source>dddd, d MMMM</source>
        <translation>dddd، d MMMM</translation>
    </message>
</context>
</TS>
