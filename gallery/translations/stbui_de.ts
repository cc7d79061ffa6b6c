<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AboutScreen</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>Galerie</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Bedienelemente</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>Renderer</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Pictures and texts</source>
        <translation>Bilder und Texte</translation>
    </message>
    <message>
        <source>Icons, pictures and logos were drawn for this project. They and the texts of the own guide and catalogue have its licence. What comes from other files belongs to their authors.</source>
        <translation>Symbole, Bilder und Logos wurden für dieses Projekt gezeichnet. Für sie und die Texte des eigenen Programms und Katalogs gilt seine Lizenz. Was aus anderen Dateien kommt, gehört deren Urhebern.</translation>
    </message>
    <message>
        <source>The gallery brings no fonts; it uses those of the device.</source>
        <translation>Die Galerie bringt keine Schriften mit; sie nutzt die des Geräts.</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Scroll</source>
        <translation>Blättern</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlassen</translation>
    </message>
    <message>
        <source>%1, built with %2</source>
        <translation>%1, gebaut mit %2</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>BusyIndicator</name>
    <message>
        <source>Please wait</source>
        <translation>Bitte warten</translation>
    </message>
</context>
<context>
    <name>ChannelFacts</name>
    <message>
        <source>Nothing is known of what is on</source>
        <translation>Über die laufende Sendung ist nichts bekannt</translation>
    </message>
</context>
<context>
    <name>ChannelsScreen</name>
    <message>
        <source>Channels</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>There are no channels</source>
        <translation>Es gibt keine Sender</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>No such channel</source>
        <translation>Diesen Sender gibt es nicht</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlassen</translation>
    </message>
</context>
<context>
    <name>CircleProgressBar</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>ComponentEditorList</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
</context>
<context>
    <name>ComponentHints</name>
    <message>
        <source>The line was copied</source>
        <translation>Die Zeile ist kopiert</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try out</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Use the control</source>
        <translation>Element bedienen</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>Leave the control</source>
        <translation>Element verlassen</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Umschalten</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlassen</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
</context>
<context>
    <name>ComponentPageList</name>
    <message>
        <source>Controls</source>
        <translation>Elemente</translation>
    </message>
</context>
<context>
    <name>ComponentsScreen</name>
    <message>
        <source>Components</source>
        <translation>Komponenten</translation>
    </message>
</context>
<context>
    <name>ComponentStage</name>
    <message>
        <source>What is typed</source>
        <translation>Getippter Text</translation>
    </message>
</context>
<context>
    <name>DetailScreen</name>
    <message>
        <source>Reminder is set</source>
        <translation>Erinnerung ist an</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Erinnern</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>In favourites</source>
        <translation>In den Favoriten</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Zu Favoriten</translation>
    </message>
    <message>
        <source>Trailer</source>
        <translation>Trailer</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>TV-Programm</translation>
    </message>
    <message>
        <source>Like</source>
        <translation>Gefällt mir</translation>
    </message>
    <message>
        <source>Episodes</source>
        <translation>Folgen</translation>
    </message>
</context>
<context>
    <name>DetailsOverlay</name>
    <message>
        <source>Channel</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Read on</source>
        <translation>Weiterlesen</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Sendung</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>Von Anfang</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>gallery::ComponentValues</name>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
</context>
<context>
    <name>GroupTabs</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>GuideScreen</name>
    <message>
        <source>There are no channels in this guide</source>
        <translation>Dieses Programm enthält keine Sender</translation>
    </message>
    <message>
        <source>No programmes on this day</source>
        <translation>Keine Sendungen an diesem Tag</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Sendung</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>On now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>dddd, d MMMM</source>
        <extracomment>Weekday, day and month without the year, in the form that QLocale::toString() takes</extracomment>
        <translation>dddd, d. MMMM</translation>
    </message>
    <message>
        <source>The guide is not complete: %1</source>
        <extracomment>%1 says what is wrong, and where in the file</extracomment>
        <translation>Das Programm ist unvollständig: %1</translation>
    </message>
    <message>
        <source>ddd, d MMM</source>
        <extracomment>As &quot;dddd, d MMMM&quot;, but short</extracomment>
        <translation>ddd, d. MMM</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>GREEN</source>
        <comment>a key of the remote control</comment>
        <translation>GRÜN</translation>
    </message>
    <message>
        <source>Programmes</source>
        <translation>Sendungen</translation>
    </message>
    <message>
        <source>INFO</source>
        <comment>a key of the remote control</comment>
        <translation>INFO</translation>
    </message>
    <message>
        <source>Reminders: %1</source>
        <extracomment>%1 names the file and says what is wrong</extracomment>
        <translation>Erinnerungen: %1</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlassen</translation>
    </message>
</context>
<context>
    <name>HomeScreen</name>
    <message>
        <source>Press BACK again to leave</source>
        <translation>Zum Beenden noch einmal ZURÜCK drücken</translation>
    </message>
    <message>
        <source>There is nothing on TV now, and the catalogue is empty</source>
        <translation>Im Fernsehen läuft gerade nichts, und der Katalog ist leer</translation>
    </message>
    <message>
        <source>Now on TV</source>
        <translation>Jetzt im TV</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Serien</translation>
    </message>
    <message>
        <source>Continue watching</source>
        <translation>Weiterschauen</translation>
    </message>
</context>
<context>
    <name>Keyboard</name>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
    <message>
        <source>Text field</source>
        <translation>Textfeld</translation>
    </message>
</context>
<context>
    <name>LoadingView</name>
    <message>
        <source>Reading the guide…</source>
        <translation>Programm wird gelesen …</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Main menu</source>
        <translation>Hauptmenü</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>TV-Programm</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Komponenten</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>MediaItem</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a day (&quot;Tomorrow&quot;), %2 a time: &quot;Tomorrow, 20:15&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 and %2 are the times of start and stop. A language that is read from the right has its marks (U+200F) around the dash, or the times change places where there is no other text.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>Length of a film: minutes</extracomment>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>Length of a film: hours and minutes</extracomment>
        <translation>%1 Std. %2 Min.</translation>
    </message>
    <message>
        <source>Season %1, episode %2</source>
        <extracomment>%1 is the season&apos;s number, %2 the episode&apos;s</extracomment>
        <translation>Staffel %1, Folge %2</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1 is how much is left of a film that was begun: &quot;12 min&quot;</extracomment>
        <translation>Noch %1</translation>
    </message>
    <message>
        <source>There is no film to play in this gallery.</source>
        <translation>In dieser Galerie gibt es keinen Film zum Abspielen.</translation>
    </message>
    <message>
        <source>This channel is locked</source>
        <translation>Dieser Sender ist gesperrt</translation>
    </message>
</context>
<context>
    <name>PlayerButtons</name>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>Von Anfang</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>TV-Programm</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>This channel is locked</source>
        <translation>Dieser Sender ist gesperrt</translation>
    </message>
    <message>
        <source>Programmes</source>
        <translation>Sendungen</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>There is nothing on now</source>
        <translation>Im Moment läuft nichts</translation>
    </message>
    <message>
        <source>There are no channels to watch</source>
        <translation>Es gibt keine Sender zum Ansehen</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>%1, %2 – %3</source>
        <extracomment>%1 is a day (&quot;Today&quot;), %2 and %3 are the times of start and stop: &quot;Today, 20:00 – 20:30&quot;</extracomment>
        <translation>%1, %2 – %3</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>%1 behind live</source>
        <extracomment>%1 is how long ago it was sent what is watched: &quot;12 min&quot;</extracomment>
        <translation>%1 nach der Sendung</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Sendung</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>PlayingProgrammes</name>
    <message>
        <source>This channel has no programme guide</source>
        <translation>Dieser Sender hat kein Programm</translation>
    </message>
</context>
<context>
    <name>Programme</name>
    <message>
        <source>Untitled</source>
        <extracomment>A programme whose title the guide does not tell</extracomment>
        <translation>Ohne Titel</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>NOW_IN_LIVE</source>
        <extracomment>Label on a programme that is on air</extracomment>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>WATCH_UNAVAILABLE</source>
        <extracomment>Status of a programme that cannot be watched</extracomment>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>LIVE_SOON</source>
        <extracomment>Status of a programme that is to come</extracomment>
        <translation>Demnächst</translation>
    </message>
    <message>
        <source>ADD_REMINDER</source>
        <extracomment>Action: be reminded of a programme</extracomment>
        <translation>Erinnern</translation>
    </message>
    <message>
        <source>DELETE_REMINDER</source>
        <extracomment>Action: no longer be reminded of a programme</extracomment>
        <translation>Erinnerung löschen</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <extracomment>On the channel that plays now</extracomment>
        <translation>Läuft</translation>
    </message>
</context>
<context>
    <name>ScreenHeader</name>
    <message>
        <source>TV guide</source>
        <translation>TV-Programm</translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Scroll bar</source>
        <translation>Bildlaufleiste</translation>
    </message>
</context>
<context>
    <name>ScrolledGridView</name>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
</context>
<context>
    <name>ScrolledListView</name>
    <message>
        <source>List</source>
        <translation>Liste</translation>
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
        <translation>Details</translation>
    </message>
    <message>
        <source>YELLOW</source>
        <comment>a key of the remote control</comment>
        <translation>GELB</translation>
    </message>
    <message>
        <source>Favourite channel</source>
        <translation>Sender als Favorit</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>CH −</source>
        <comment>a key of the remote control</comment>
        <translation>CH −</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlassen</translation>
    </message>
</context>
<context>
    <name>SearchResults</name>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Programmes, films, series</source>
        <translation>Sendungen, Filme, Serien</translation>
    </message>
    <message>
        <source>Type the name of a programme, a film or a series</source>
        <translation>Geben Sie den Namen einer Sendung, eines Films oder einer Serie ein</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft …</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <extracomment>%1 is what the viewer has typed</extracomment>
        <translation>Nichts gefunden für „%1“</translation>
    </message>
</context>
<context>
    <name>SeriesScreen</name>
    <message>
        <source>There are no episodes yet</source>
        <translation>Es gibt noch keine Folgen</translation>
    </message>
    <message>
        <source>d</source>
        <extracomment>Day of the month, alone in a line above the month, in the form that QLocale::toString() takes</extracomment>
        <translation>d.</translation>
    </message>
    <message>
        <source>MMMM</source>
        <extracomment>The month below the day, in the form that QLocale::toString() takes</extracomment>
        <translation>MMMM</translation>
    </message>
    <message>
        <source>Viewed</source>
        <translation>Gesehen</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>Staffel %1</translation>
    </message>
    <message>
        <source>Specials</source>
        <translation>Sonderfolgen</translation>
    </message>
    <message>
        <source>Opening “%1”…</source>
        <extracomment>%1 is an episode&apos;s title</extracomment>
        <translation>„%1“ wird geöffnet…</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>Day, month and year, in the form that QLocale::toString() takes</extracomment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>This episode comes out on %1</source>
        <extracomment>%1 is a date</extracomment>
        <translation>Diese Folge erscheint am %1</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Staffel</translation>
    </message>
    <message>
        <source>Episodes</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation>Folge</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlassen</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>Copper</source>
        <translation>Kupfer</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Textgröße</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Rounded corners</source>
        <translation>Runde Ecken</translation>
    </message>
    <message>
        <source>Tiles grow smoothly</source>
        <translation>Kacheln wachsen fließend</translation>
    </message>
    <message>
        <source>Tiles and menu scroll smoothly</source>
        <translation>Kacheln und Menü rollen fließend</translation>
    </message>
    <message>
        <source>The home screen scrolls smoothly</source>
        <translation>Die Startseite rollt fließend</translation>
    </message>
    <message>
        <source>Pictures and menu edges fade in</source>
        <translation>Bilder und Menüränder blenden ein</translation>
    </message>
    <message>
        <source>Menu and details slide in</source>
        <translation>Menü und Details gleiten herein</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>This could not be stored: it holds until you leave</source>
        <translation>Nicht gespeichert: gilt bis zum Verlassen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>ZURÜCK</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlassen</translation>
    </message>
</context>
<context>
    <name>stbgeneric::KeyboardPad</name>
    <message>
        <source>Space</source>
        <extracomment>On a key of the on-screen keyboard</extracomment>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Backspace</source>
        <extracomment>A key of the on-screen keyboard</extracomment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursor nach links</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursor nach rechts</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>On a key of the on-screen keyboard</extracomment>
        <translation>Umsch</translation>
    </message>
    <message>
        <source>Caps lock</source>
        <translation>Feststelltaste</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Sprache: %1</translation>
    </message>
</context>
<context>
    <name>stbui::EpgListModel</name>
    <message>
        <source>REMINDER_WAS_SET</source>
        <extracomment>Status: a reminder is set for this programme</extracomment>
        <translation>Erinnerung gesetzt</translation>
    </message>
    <message>
        <source>ON</source>
        <extracomment>Before the time at which a programme starts: &quot;At 20:05&quot;</extracomment>
        <translation>Um</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <extracomment>Status: this programme plays now</extracomment>
        <translation>Läuft</translation>
    </message>
</context>
</TS>
