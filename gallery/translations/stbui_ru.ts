<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>NOW_IN_LIVE</source>
        <translation>В эфире</translation>
    </message>
    <message>
        <source>WATCH_UNAVAILABLE</source>
        <translation>Просмотр недоступен</translation>
    </message>
    <message>
        <source>LIVE_SOON</source>
        <translation>Скоро в эфире</translation>
    </message>
    <message>
        <source>ADD_REMINDER</source>
        <translation>Напомнить</translation>
    </message>
    <message>
        <source>DELETE_REMINDER</source>
        <translation>Удалить напоминание</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <translation>Воспроизводится</translation>
    </message>
</context>
<context>
    <name>stbui::EpgListModel</name>
    <message>
        <source>REMINDER_WAS_SET</source>
        <translation>Напоминание установлено</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>В</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <translation>Воспроизводится</translation>
    </message>
</context>
<context>
    <name>gallery::Application</name>
    <message>
        <source>TV guide</source>
        <translation>Телепрограмма</translation>
    </message>
</context>
<context>
    <name>gallery::GuideController</name>
    <message>
        <source>dddd, d MMMM</source>
        <translation>dddd, d MMMM</translation>
    </message>
</context>
</TS>
