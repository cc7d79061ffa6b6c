<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>AboutScreen</name>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>Галерея</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Элементы управления</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>Renderer</source>
        <translation>Отрисовка</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Шрифт</translation>
    </message>
    <message>
        <source>Pictures and texts</source>
        <translation>Изображения и тексты</translation>
    </message>
    <message>
        <source>Icons, pictures and logos were drawn for this project. They and the texts of the own guide and catalogue have its licence. What comes from other files belongs to their authors.</source>
        <translation>Значки, изображения и логотипы нарисованы для этого проекта. На них и на тексты собственной программы передач и каталога распространяется его лицензия. Содержимое других файлов принадлежит их авторам.</translation>
    </message>
    <message>
        <source>The gallery brings no fonts; it uses those of the device.</source>
        <translation>Своих шрифтов у галереи нет: она использует шрифты устройства.</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Лицензия</translation>
    </message>
    <message>
        <source>Scroll</source>
        <translation>Прокрутка</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>%1, built with %2</source>
        <translation>%1, собрано с %2</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Программная</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
</context>
<context>
    <name>BusyIndicator</name>
    <message>
        <source>Please wait</source>
        <translation>Подождите</translation>
    </message>
</context>
<context>
    <name>ChannelFacts</name>
    <message>
        <source>Nothing is known of what is on</source>
        <translation>Нет данных о том, что идёт сейчас</translation>
    </message>
</context>
<context>
    <name>ChannelsScreen</name>
    <message>
        <source>Channels</source>
        <translation>Каналы</translation>
    </message>
    <message>
        <source>There are no channels</source>
        <translation>Каналов нет</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Канал</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Смотреть</translation>
    </message>
    <message>
        <source>No such channel</source>
        <translation>Такого канала нет</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Выйти</translation>
    </message>
</context>
<context>
    <name>CircleProgressBar</name>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
</context>
<context>
    <name>ComponentEditorList</name>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
</context>
<context>
    <name>ComponentHints</name>
    <message>
        <source>The line was copied</source>
        <translation>Строка скопирована</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Элемент</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try out</source>
        <translation>Попробовать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Use the control</source>
        <translation>Управлять элементом</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>Leave the control</source>
        <translation>Выйти из элемента</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Элементы</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Переключить</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Дальше</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
</context>
<context>
    <name>ComponentPageList</name>
    <message>
        <source>Controls</source>
        <translation>Элементы</translation>
    </message>
</context>
<context>
    <name>ComponentsScreen</name>
    <message>
        <source>Components</source>
        <translation>Компоненты</translation>
    </message>
</context>
<context>
    <name>ComponentStage</name>
    <message>
        <source>What is typed</source>
        <translation>Набранный текст</translation>
    </message>
</context>
<context>
    <name>DetailScreen</name>
    <message>
        <source>Reminder is set</source>
        <translation>Напоминание включено</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Напомнить</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Смотреть</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Смотреть</translation>
    </message>
    <message>
        <source>In favourites</source>
        <translation>В избранном</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>В избранное</translation>
    </message>
    <message>
        <source>Trailer</source>
        <translation>Трейлер</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>Телепрограмма</translation>
    </message>
    <message>
        <source>Like</source>
        <translation>Нравится</translation>
    </message>
    <message>
        <source>Episodes</source>
        <translation>Серии</translation>
    </message>
</context>
<context>
    <name>DetailsOverlay</name>
    <message>
        <source>Channel</source>
        <translation>Канал</translation>
    </message>
    <message>
        <source>Read on</source>
        <translation>Читать дальше</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Передача</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Смотреть</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>С начала</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>gallery::ComponentValues</name>
    <message>
        <source>Default</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Пусто</translation>
    </message>
</context>
<context>
    <name>GroupTabs</name>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
</context>
<context>
    <name>GuideScreen</name>
    <message>
        <source>There are no channels in this guide</source>
        <translation>В этой программе нет каналов</translation>
    </message>
    <message>
        <source>No programmes on this day</source>
        <translation>На этот день передач нет</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Канал</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Передача</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробнее</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>On now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>dddd, d MMMM</source>
        <extracomment>Weekday, day and month without the year, in the form that QLocale::toString() takes</extracomment>
        <translation>dddd, d MMMM</translation>
    </message>
    <message>
        <source>The guide is not complete: %1</source>
        <extracomment>%1 says what is wrong, and where in the file</extracomment>
        <translation>Программа неполная: %1</translation>
    </message>
    <message>
        <source>ddd, d MMM</source>
        <extracomment>As &quot;dddd, d MMMM&quot;, but short</extracomment>
        <translation>ddd, d MMM</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>День</translation>
    </message>
    <message>
        <source>GREEN</source>
        <comment>a key of the remote control</comment>
        <translation>ЗЕЛЁНАЯ</translation>
    </message>
    <message>
        <source>Programmes</source>
        <translation>Передачи</translation>
    </message>
    <message>
        <source>INFO</source>
        <comment>a key of the remote control</comment>
        <translation>INFO</translation>
    </message>
    <message>
        <source>Reminders: %1</source>
        <extracomment>%1 names the file and says what is wrong</extracomment>
        <translation>Напоминания: %1</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Выйти</translation>
    </message>
</context>
<context>
    <name>HomeScreen</name>
    <message>
        <source>Press BACK again to leave</source>
        <translation>Чтобы выйти, нажмите НАЗАД ещё раз</translation>
    </message>
    <message>
        <source>There is nothing on TV now, and the catalogue is empty</source>
        <translation>Сейчас в эфире ничего нет, и каталог пуст</translation>
    </message>
    <message>
        <source>Now on TV</source>
        <translation>Сейчас в эфире</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Фильмы</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Сериалы</translation>
    </message>
    <message>
        <source>Continue watching</source>
        <translation>Продолжить просмотр</translation>
    </message>
</context>
<context>
    <name>Keyboard</name>
    <message>
        <source>Keyboard</source>
        <translation>Клавиатура</translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
    <message>
        <source>Text field</source>
        <translation>Текстовое поле</translation>
    </message>
</context>
<context>
    <name>LoadingView</name>
    <message>
        <source>Reading the guide…</source>
        <translation>Загрузка программы…</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Main menu</source>
        <translation>Главное меню</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>Телепрограмма</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Каналы</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Компоненты</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
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
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>Length of a film: hours and minutes</extracomment>
        <translation>%1 ч %2 мин</translation>
    </message>
    <message>
        <source>Season %1, episode %2</source>
        <extracomment>%1 is the season&apos;s number, %2 the episode&apos;s</extracomment>
        <translation>Сезон %1, серия %2</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1 is how much is left of a film that was begun: &quot;12 min&quot;</extracomment>
        <translation>Осталось %1</translation>
    </message>
    <message>
        <source>There is no film to play in this gallery.</source>
        <translation>В этой галерее нет фильма, который можно показать.</translation>
    </message>
    <message>
        <source>This channel is locked</source>
        <translation>Этот канал заблокирован</translation>
    </message>
</context>
<context>
    <name>PlayerButtons</name>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>С начала</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Эфир</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>В избранное</translation>
    </message>
    <message>
        <source>TV guide</source>
        <translation>Программа</translation>
    </message>
</context>
<context>
    <name>PlayerScreen</name>
    <message>
        <source>This channel is locked</source>
        <translation>Этот канал заблокирован</translation>
    </message>
    <message>
        <source>Programmes</source>
        <translation>Передачи</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Канал</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Действия</translation>
    </message>
    <message>
        <source>There is nothing on now</source>
        <translation>Сейчас в эфире ничего нет</translation>
    </message>
    <message>
        <source>There are no channels to watch</source>
        <translation>Нет каналов для просмотра</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Завтра</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>%1, %2 – %3</source>
        <extracomment>%1 is a day (&quot;Today&quot;), %2 and %3 are the times of start and stop: &quot;Today, 20:00 – 20:30&quot;</extracomment>
        <translation>%1, %2 – %3</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>%1 behind live</source>
        <extracomment>%1 is how long ago it was sent what is watched: &quot;12 min&quot;</extracomment>
        <translation>Отставание от эфира: %1</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Передача</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Скрыть</translation>
    </message>
</context>
<context>
    <name>PlayingProgrammes</name>
    <message>
        <source>This channel has no programme guide</source>
        <translation>Для этого канала нет программы</translation>
    </message>
</context>
<context>
    <name>Programme</name>
    <message>
        <source>Untitled</source>
        <extracomment>A programme whose title the guide does not tell</extracomment>
        <translation>Без названия</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>NOW_IN_LIVE</source>
        <extracomment>Label on a programme that is on air</extracomment>
        <translation>В ЭФИРЕ</translation>
    </message>
    <message>
        <source>WATCH_UNAVAILABLE</source>
        <extracomment>Status of a programme that cannot be watched</extracomment>
        <translation>Просмотр недоступен</translation>
    </message>
    <message>
        <source>LIVE_SOON</source>
        <extracomment>Status of a programme that is to come</extracomment>
        <translation>Скоро в эфире</translation>
    </message>
    <message>
        <source>ADD_REMINDER</source>
        <extracomment>Action: be reminded of a programme</extracomment>
        <translation>Напомнить</translation>
    </message>
    <message>
        <source>DELETE_REMINDER</source>
        <extracomment>Action: no longer be reminded of a programme</extracomment>
        <translation>Удалить напоминание</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <extracomment>On the channel that plays now</extracomment>
        <translation>Воспроизводится</translation>
    </message>
</context>
<context>
    <name>ScreenHeader</name>
    <message>
        <source>TV guide</source>
        <translation>Телепрограмма</translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Scroll bar</source>
        <translation>Полоса прокрутки</translation>
    </message>
</context>
<context>
    <name>ScrolledGridView</name>
    <message>
        <source>Grid</source>
        <translation>Сетка</translation>
    </message>
</context>
<context>
    <name>ScrolledListView</name>
    <message>
        <source>List</source>
        <translation>Список</translation>
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
        <translation>Подробнее</translation>
    </message>
    <message>
        <source>YELLOW</source>
        <comment>a key of the remote control</comment>
        <translation>ЖЁЛТАЯ</translation>
    </message>
    <message>
        <source>Favourite channel</source>
        <translation>Канал в избранное</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>В избранное</translation>
    </message>
    <message>
        <source>CH −</source>
        <comment>a key of the remote control</comment>
        <translation>CH −</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Клавиатура</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Выйти</translation>
    </message>
</context>
<context>
    <name>SearchResults</name>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
</context>
<context>
    <name>SearchScreen</name>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Programmes, films, series</source>
        <translation>Передачи, фильмы, сериалы</translation>
    </message>
    <message>
        <source>Type the name of a programme, a film or a series</source>
        <translation>Введите название передачи, фильма или сериала</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Идёт поиск…</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <extracomment>%1 is what the viewer has typed</extracomment>
        <translation>По запросу «%1» ничего не найдено</translation>
    </message>
</context>
<context>
    <name>SeriesScreen</name>
    <message>
        <source>There are no episodes yet</source>
        <translation>Серий пока нет</translation>
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
        <translation>Просмотрено</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>Сезон %1</translation>
    </message>
    <message>
        <source>Specials</source>
        <translation>Спецвыпуски</translation>
    </message>
    <message>
        <source>Opening “%1”…</source>
        <extracomment>%1 is an episode&apos;s title</extracomment>
        <translation>Открывается «%1»…</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>Day, month and year, in the form that QLocale::toString() takes</extracomment>
        <translation>d MMMM yyyy &apos;г.&apos;</translation>
    </message>
    <message>
        <source>This episode comes out on %1</source>
        <extracomment>%1 is a date</extracomment>
        <translation>Эта серия выйдет %1</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Сезон</translation>
    </message>
    <message>
        <source>Episodes</source>
        <translation>Серии</translation>
    </message>
    <message>
        <source>Episode</source>
        <translation>Серия</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Смотреть</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Выйти</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Высокая контрастность</translation>
    </message>
    <message>
        <source>Copper</source>
        <translation>Медь</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Стандартная</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Размер текста</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Rounded corners</source>
        <translation>Скруглённые углы</translation>
    </message>
    <message>
        <source>Tiles grow smoothly</source>
        <translation>Плитки плавно увеличиваются</translation>
    </message>
    <message>
        <source>Tiles and menu scroll smoothly</source>
        <translation>Плитки и меню движутся плавно</translation>
    </message>
    <message>
        <source>The home screen scrolls smoothly</source>
        <translation>Главный экран движется плавно</translation>
    </message>
    <message>
        <source>Pictures and menu edges fade in</source>
        <translation>Картинки и края меню проявляются</translation>
    </message>
    <message>
        <source>Menu and details slide in</source>
        <translation>Меню и сведения выезжают</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Анимация</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>This could not be stored: it holds until you leave</source>
        <translation>Не удалось сохранить: действует до выхода</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выбор</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>a key of the remote control</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>BACK</source>
        <comment>a key of the remote control</comment>
        <translation>НАЗАД</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Выйти</translation>
    </message>
</context>
<context>
    <name>stbgeneric::KeyboardPad</name>
    <message>
        <source>Space</source>
        <extracomment>On a key of the on-screen keyboard</extracomment>
        <translation>Пробел</translation>
    </message>
    <message>
        <source>Backspace</source>
        <extracomment>A key of the on-screen keyboard</extracomment>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Курсор влево</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Курсор вправо</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>On a key of the on-screen keyboard</extracomment>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Caps lock</source>
        <translation>Caps Lock</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Буквы</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Символы</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Язык: %1</translation>
    </message>
</context>
<context>
    <name>stbui::EpgListModel</name>
    <message>
        <source>REMINDER_WAS_SET</source>
        <extracomment>Status: a reminder is set for this programme</extracomment>
        <translation>Напоминание установлено</translation>
    </message>
    <message>
        <source>ON</source>
        <extracomment>Before the time at which a programme starts: &quot;At 20:05&quot;</extracomment>
        <translation>В</translation>
    </message>
    <message>
        <source>PLAYING</source>
        <extracomment>Status: this programme plays now</extracomment>
        <translation>Воспроизводится</translation>
    </message>
</context>
</TS>
