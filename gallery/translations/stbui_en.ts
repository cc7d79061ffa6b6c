<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en">
<context>
    <name>AboutScreen</name>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>Gallery</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controls</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>Renderer</source>
        <translation>Renderer</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Pictures and texts</source>
        <translation>Pictures and texts</translation>
    </message>
    <message>
        <source>Icons, pictures and logos were drawn for this project. They and the texts of the own guide and catalogue have its licence. What comes from other files belongs to their authors.</source>
        <translation>Icons, pictures and logos were drawn for this project. They and the texts of the own guide and catalogue have its licence. What comes from other files belongs to their authors.</translation>
    </message>
    <message>
        <source>The gallery brings no fonts; it uses those of the device.</source>
        <translation>The gallery brings no fonts; it uses those of the device.</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Scroll</source>
        <translation>Scroll</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>BACK</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Leave</translation>
    </message>
    <message>
        <source>%1, built with %2</source>
        <translation>%1, built with %2</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
</context>
<context>
    <name>BusyIndicator</name>
    <message>
        <source>Please wait</source>
        <translation>Please wait</translation>
    </message>
</context>
<context>
    <name>ChannelFacts</name>
    <message>
        <source>Nothing is known of what is on</source>
        <translation>Nothing is known of what is on</translation>
    </message>
</context>
<context>
    <name>ChannelsScreen</name>
    <message>
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>There are no channels</source>
        <translation>There are no channels</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Watch</translation>
    </message>
    <message>
        <source>No such channel</source>
        <translation>No such channel</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>BACK</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Leave</translation>
    </message>
</context>
<context>
    <name>CircleProgressBar</name>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
</context>
<context>
    <name>ComponentEditorList</name>
    <message>
        <source>Properties</source>
        <translation>Properties</translation>
    </message>
</context>
<context>
    <name>ComponentHints</name>
    <message>
        <source>The line was copied</source>
        <translation>The line was copied</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try out</source>
        <translation>Try out</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Use the control</source>
        <translation>Use the control</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>BACK</translation>
    </message>
    <message>
        <source>Leave the control</source>
        <translation>Leave the control</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controls</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Switch</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Leave</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Properties</translation>
    </message>
</context>
<context>
    <name>ComponentPageList</name>
    <message>
        <source>Controls</source>
        <translation>Controls</translation>
    </message>
</context>
<context>
    <name>ComponentsScreen</name>
    <message>
        <source>Components</source>
        <translation>Components</translation>
    </message>
</context>
<context>
    <name>ComponentStage</name>
    <message>
        <source>What is typed</source>
        <translation>What is typed</translation>
    </message>
</context>
<context>
    <name>DetailScreen</name>
    <message>
        <source>Reminder is set</source>
        <translation>Reminder is set</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Remind me</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Watch</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>In favourites</source>
        <translation>In favourites</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Add to favourites</translation>
    </message>
    <message>
        <source>Trailer</source>
        <translation>Trailer</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>TV guide</translation>
    </message>
    <message>
        <source>Like</source>
        <translation>Like</translation>
    </message>
    <message>
        <source>Episodes</source>
        <translation>Episodes</translation>
    </message>
</context>
<context>
    <name>DetailsOverlay</name>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>Read on</source>
        <translation>Read on</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Watch</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>From the start</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>BACK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>gallery::ComponentValues</name>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Empty</translation>
    </message>
</context>
<context>
    <name>GroupTabs</name>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
</context>
<context>
    <name>GuideScreen</name>
    <message>
        <source>There are no channels in this guide</source>
        <translation>There are no channels in this guide</translation>
    </message>
    <message>
        <source>No programmes on this day</source>
        <translation>No programmes on this day</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Programme</translation>
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
        <translation>BACK</translation>
    </message>
    <message>
        <source>On now</source>
        <translation>On now</translation>
    </message>
    <message>
        <source>dddd, d MMMM</source>
        <extracomment>Weekday, day and month without the year, in the form that QLocale::toString() takes</extracomment>
        <translation>dddd, d MMMM</translation>
    </message>
    <message>
        <source>The guide is not complete: %1</source>
        <extracomment>%1 says what is wrong, and where in the file</extracomment>
        <translation>The guide is not complete: %1</translation>
    </message>
    <message>
        <source>ddd, d MMM</source>
        <extracomment>As &quot;dddd, d MMMM&quot;, but short</extracomment>
        <translation>ddd, d MMM</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>GREEN</source>
        <comment>a key of the remote control</comment>
        <translation>GREEN</translation>
    </message>
    <message>
        <source>Programmes</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>INFO</source>
        <comment>a key of the remote control</comment>
        <translation>INFO</translation>
    </message>
    <message>
        <source>Reminders: %1</source>
        <extracomment>%1 names the file and says what is wrong</extracomment>
        <translation>Reminders: %1</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Leave</translation>
    </message>
</context>
<context>
    <name>HomeScreen</name>
    <message>
        <source>Press BACK again to leave</source>
        <translation>Press BACK again to leave</translation>
    </message>
    <message>
        <source>There is nothing on TV now, and the catalogue is empty</source>
        <translation>There is nothing on TV now, and the catalogue is empty</translation>
    </message>
    <message>
        <source>Now on TV</source>
        <translation>Now on TV</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Series</translation>
    </message>
    <message>
        <source>Continue watching</source>
        <translation>Continue watching</translation>
    </message>
</context>
<context>
    <name>Keyboard</name>
    <message>
        <source>Keyboard</source>
        <translation>Keyboard</translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
    <message>
        <source>Text field</source>
        <translation>Text field</translation>
    </message>
</context>
<context>
    <name>LoadingView</name>
    <message>
        <source>Reading the guide…</source>
        <translation>Reading the guide…</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Main menu</source>
        <translation>Main menu</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>TV guide</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Components</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
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
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>Length of a film: hours and minutes</extracomment>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Season %1, episode %2</source>
        <extracomment>%1 is the season&apos;s number, %2 the episode&apos;s</extracomment>
        <translation>Season %1, episode %2</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1 is how much is left of a film that was begun: &quot;12 min&quot;</extracomment>
        <translation>%1 left</translation>
    </message>
    <message>
        <source>There is no film to play in this gallery.</source>
        <translation>There is no film to play in this gallery.</translation>
    </message>
    <message>
        <source>This channel is locked</source>
        <translation>This channel is locked</translation>
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
        <translation>From the start</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favourite</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>TV guide</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>This channel is locked</source>
        <translation>This channel is locked</translation>
    </message>
    <message>
        <source>Programmes</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>There is nothing on now</source>
        <translation>There is nothing on now</translation>
    </message>
    <message>
        <source>There are no channels to watch</source>
        <translation>There are no channels to watch</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Tomorrow</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>%1, %2 – %3</source>
        <extracomment>%1 is a day (&quot;Today&quot;), %2 and %3 are the times of start and stop: &quot;Today, 20:00 – 20:30&quot;</extracomment>
        <translation>%1, %2 – %3</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>%1 behind live</source>
        <extracomment>%1 is how long ago it was sent what is watched: &quot;12 min&quot;</extracomment>
        <translation>%1 behind live</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>BACK</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Hide</translation>
    </message>
</context>
<context>
    <name>PlayingProgrammes</name>
    <message>
        <source>This channel has no programme guide</source>
        <translation>This channel has no programme guide</translation>
    </message>
</context>
<context>
    <name>Programme</name>
    <message>
        <source>Untitled</source>
        <extracomment>A programme whose title the guide does not tell</extracomment>
        <translation>Untitled</translation>
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
        <translation>Not available to watch</translation>
    </message>
    <message>
        <source>LIVE_SOON</source>
        <extracomment>Status of a programme that is to come</extracomment>
        <translation>On soon</translation>
    </message>
    <message>
        <source>ADD_REMINDER</source>
        <extracomment>Action: be reminded of a programme</extracomment>
        <translation>Remind me</translation>
    </message>
    <message>
        <source>DELETE_REMINDER</source>
        <extracomment>Action: no longer be reminded of a programme</extracomment>
        <translation>Remove reminder</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <extracomment>On the channel that plays now</extracomment>
        <translation>Playing</translation>
    </message>
</context>
<context>
    <name>ScreenHeader</name>
    <message>
        <source>TV guide</source>
        <translation>TV guide</translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Scroll bar</source>
        <translation>Scroll bar</translation>
    </message>
</context>
<context>
    <name>ScrolledGridView</name>
    <message>
        <source>Grid</source>
        <translation>Grid</translation>
    </message>
</context>
<context>
    <name>ScrolledListView</name>
    <message>
        <source>List</source>
        <translation>List</translation>
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
        <translation>YELLOW</translation>
    </message>
    <message>
        <source>Favourite channel</source>
        <translation>Favourite channel</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favourite</translation>
    </message>
    <message>
        <source>CH −</source>
        <comment>a key of the remote control</comment>
        <translation>CH −</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Results</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>BACK</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Keyboard</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Leave</translation>
    </message>
</context>
<context>
    <name>SearchResults</name>
    <message>
        <source>Results</source>
        <translation>Results</translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Programmes, films, series</source>
        <translation>Programmes, films, series</translation>
    </message>
    <message>
        <source>Type the name of a programme, a film or a series</source>
        <translation>Type the name of a programme, a film or a series</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Searching…</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <extracomment>%1 is what the viewer has typed</extracomment>
        <translation>Nothing found for “%1”</translation>
    </message>
</context>
<context>
    <name>SeriesScreen</name>
    <message>
        <source>There are no episodes yet</source>
        <translation>There are no episodes yet</translation>
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
        <translation>Viewed</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>Season %1</translation>
    </message>
    <message>
        <source>Specials</source>
        <translation>Specials</translation>
    </message>
    <message>
        <source>Opening “%1”…</source>
        <extracomment>%1 is an episode&apos;s title</extracomment>
        <translation>Opening “%1”…</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>Day, month and year, in the form that QLocale::toString() takes</extracomment>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>This episode comes out on %1</source>
        <extracomment>%1 is a date</extracomment>
        <translation>This episode comes out on %1</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Season</translation>
    </message>
    <message>
        <source>Episodes</source>
        <translation>Episodes</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation>Episode</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Watch</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>BACK</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Leave</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>High contrast</translation>
    </message>
    <message>
        <source>Copper</source>
        <translation>Copper</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Text size</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Rounded corners</source>
        <translation>Rounded corners</translation>
    </message>
    <message>
        <source>Tiles grow smoothly</source>
        <translation>Tiles grow smoothly</translation>
    </message>
    <message>
        <source>Tiles and menu scroll smoothly</source>
        <translation>Tiles and menu scroll smoothly</translation>
    </message>
    <message>
        <source>The home screen scrolls smoothly</source>
        <translation>The home screen scrolls smoothly</translation>
    </message>
    <message>
        <source>Pictures and menu edges fade in</source>
        <translation>Pictures and menu edges fade in</translation>
    </message>
    <message>
        <source>Menu and details slide in</source>
        <translation>Menu and details slide in</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Look</translation>
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
        <translation>Settings</translation>
    </message>
    <message>
        <source>This could not be stored: it holds until you leave</source>
        <translation>This could not be stored: it holds until you leave</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choose</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>BACK</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Leave</translation>
    </message>
</context>
<context>
    <name>stbgeneric::KeyboardPad</name>
    <message>
        <source>Space</source>
        <extracomment>On a key of the on-screen keyboard</extracomment>
        <translation>Space</translation>
    </message>
    <message>
        <source>Backspace</source>
        <extracomment>A key of the on-screen keyboard</extracomment>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursor left</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursor right</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>On a key of the on-screen keyboard</extracomment>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Caps lock</source>
        <translation>Caps lock</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Letters</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbols</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Language: %1</translation>
    </message>
</context>
<context>
    <name>stbui::EpgListModel</name>
    <message>
        <source>REMINDER_WAS_SET</source>
        <extracomment>Status: a reminder is set for this programme</extracomment>
        <translation>Reminder set</translation>
    </message>
    <message>
        <source>ON</source>
        <extracomment>Before the time at which a programme starts: &quot;At 20:05&quot;</extracomment>
        <translation>At</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <extracomment>Status: this programme plays now</extracomment>
        <translation>Playing</translation>
    </message>
</context>
</TS>
