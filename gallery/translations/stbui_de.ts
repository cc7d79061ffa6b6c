<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>NOW_IN_LIVE</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>WATCH_UNAVAILABLE</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>LIVE_SOON</source>
        <translation>Demnächst</translation>
    </message>
    <message>
        <source>ADD_REMINDER</source>
        <translation>Erinnern</translation>
    </message>
    <message>
        <source>DELETE_REMINDER</source>
        <translation>Erinnerung löschen</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <translation>Läuft</translation>
    </message>
</context>
<context>
    <name>stbui::EpgListModel</name>
    <message>
        <source>REMINDER_WAS_SET</source>
        <translation>Erinnerung gesetzt</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Um</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <translation>Läuft</translation>
    </message>
</context>
<context>
    <name>gallery::Application</name>
    <message>
        <source>TV guide</source>
        <translation>TV-Programm</translation>
    </message>
</context>
<context>
    <name>gallery::GuideController</name>
    <message>
        <source>dddd, d MMMM</source>
        <translation>dddd, d. MMMM</translation>
    </message>
</context>
</TS>
