<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>NOW_IN_LIVE</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>WATCH_UNAVAILABLE</source>
        <translation>Not available to watch</translation>
    </message>
    <message>
        <source>LIVE_SOON</source>
        <translation>On soon</translation>
    </message>
    <message>
        <source>ADD_REMINDER</source>
        <translation>Remind me</translation>
    </message>
    <message>
        <source>DELETE_REMINDER</source>
        <translation>Remove reminder</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <translation>Playing</translation>
    </message>
</context>
<context>
    <name>stbui::EpgListModel</name>
    <message>
        <source>REMINDER_WAS_SET</source>
        <translation>Reminder set</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>At</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <translation>Playing</translation>
    </message>
</context>
<context>
    <name>gallery::Application</name>
    <message>
        <source>TV guide</source>
        <translation>TV guide</translation>
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
