<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>till</name>
    <message>
        <source>yes/no&gt; </source>
        <translation>да/нет&gt; </translation>
    </message>
    <message>
        <source>To say yes: %1. To say no: %2.</source>
        <translation>Чтобы согласиться: %1. Чтобы отказаться: %2.</translation>
    </message>
    <message>
        <source>The till. &apos;help&apos; lists the commands, &apos;quit&apos; leaves.</source>
        <translation>Касса. help — список команд, quit — выход.</translation>
    </message>
    <message>
        <source>till&gt; </source>
        <translation>касса&gt; </translation>
    </message>
    <message>
        <source>refused</source>
        <translation>отказано</translation>
    </message>
    <message>
        <source>the till is off; &apos;restart&apos; switches it on</source>
        <translation>касса выключена; restart включит её</translation>
    </message>
    <message>
        <source>answer the next questions in advance</source>
        <translation>ответить на следующие вопросы заранее</translation>
    </message>
    <message>
        <source>show the receipt</source>
        <translation>показать чек</translation>
    </message>
    <message>
        <source>[TEXT]</source>
        <translation>[ТЕКСТ]</translation>
    </message>
    <message>
        <source>list the catalogue, or the articles that contain a text</source>
        <translation>показать каталог или товары с таким текстом</translation>
    </message>
    <message>
        <source>show what the plugin logged for the last command</source>
        <translation>показать журнал плагина за последнюю команду</translation>
    </message>
    <message>
        <source>TEXT...</source>
        <translation>ТЕКСТ...</translation>
    </message>
    <message>
        <source>print a text</source>
        <translation>напечатать текст</translation>
    </message>
    <message>
        <source>switch the till off and on; the open receipt is taken up again</source>
        <translation>выключить и включить кассу; открытый чек остаётся</translation>
    </message>
    <message>
        <source>WHAT...</source>
        <translation>ЧТО...</translation>
    </message>
    <message>
        <source>check what happened or what is; see &apos;help expect&apos;</source>
        <translation>проверить, что произошло или что есть; см. help expect</translation>
    </message>
    <message>
        <source>[COMMAND]</source>
        <translation>[КОМАНДА]</translation>
    </message>
    <message>
        <source>list the commands, or explain one</source>
        <translation>показать список команд или объяснить одну</translation>
    </message>
    <message>
        <source>in a script: carry out the commands of another file</source>
        <translation>в сценарии: выполнить команды другого файла</translation>
    </message>
    <message>
        <source>&apos;include&apos; stands in a script, in a line of its own</source>
        <translation>&apos;include&apos; бывает только в сценарии, отдельной строкой</translation>
    </message>
    <message>
        <source>leave; the open receipt is kept</source>
        <translation>выйти; открытый чек сохраняется</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation>не закрыта кавычка</translation>
    </message>
    <message>
        <source>no receipt was opened</source>
        <translation>чек не открывали</translation>
    </message>
    <message>
        <source>a position, and what is in it</source>
        <translation>позиция и что в ней</translation>
    </message>
    <message>
        <source>COUNT</source>
        <translation>ЧИСЛО</translation>
    </message>
    <message>
        <source>how many positions are not stornoed</source>
        <translation>сколько позиций не сторнировано</translation>
    </message>
    <message>
        <source>N none|capacity C|free F...</source>
        <translation>N none|capacity Ё|free С...</translation>
    </message>
    <message>
        <source>what is noted of a tara position</source>
        <translation>что записано о таре в позиции</translation>
    </message>
    <message>
        <source>N none|in TARA AMOUNT...|unplaced AMOUNT...</source>
        <translation>N none|in ТАРА СКОЛЬКО...|unplaced СКОЛЬКО...</translation>
    </message>
    <message>
        <source>where the goods of a position are</source>
        <translation>где товар позиции</translation>
    </message>
    <message>
        <source>TARAS GOODS</source>
        <translation>ТАР ТОВАРОВ</translation>
    </message>
    <message>
        <source>how many records there are of each kind</source>
        <translation>сколько записей каждого вида</translation>
    </message>
    <message>
        <source>MONEY</source>
        <translation>ДЕНЬГИ</translation>
    </message>
    <message>
        <source>the sum of the receipt</source>
        <translation>сумма чека</translation>
    </message>
    <message>
        <source>none|KEY|TEXT</source>
        <translation>none|КЛЮЧ|ТЕКСТ</translation>
    </message>
    <message>
        <source>a message that the last command showed</source>
        <translation>сообщение, которое показала последняя команда</translation>
    </message>
    <message>
        <source>a question that the last command asked</source>
        <translation>вопрос, который задала последняя команда</translation>
    </message>
    <message>
        <source>none|TEXT</source>
        <translation>none|ТЕКСТ</translation>
    </message>
    <message>
        <source>a line that the plugin logged for the last command</source>
        <translation>строка журнала плагина за последнюю команду</translation>
    </message>
    <message>
        <source>how far the receipt is</source>
        <translation>в каком состоянии чек</translation>
    </message>
    <message>
        <source>whether the plugin watches the receipt</source>
        <translation>следит ли плагин за чеком</translation>
    </message>
    <message>
        <source>COMMAND...</source>
        <translation>КОМАНДА...</translation>
    </message>
    <message>
        <source>carry out a command that ends so</source>
        <translation>выполнить команду, которая кончается так</translation>
    </message>
    <message>
        <source>which command?</source>
        <translation>какая команда?</translation>
    </message>
    <message>
        <source>an expectation cannot be expected</source>
        <translation>ожидание нельзя ожидать</translation>
    </message>
    <message>
        <source>open a receipt</source>
        <translation>открыть чек</translation>
    </message>
    <message>
        <source>ARTICLE [QUANTITY]</source>
        <translation>ТОВАР [КОЛИЧЕСТВО]</translation>
    </message>
    <message>
        <source>add an article as a new position; quantity 1 if none</source>
        <translation>добавить товар новой позицией; без количества — 1</translation>
    </message>
    <message>
        <source>POSITION QUANTITY</source>
        <translation>ПОЗИЦИЯ КОЛИЧЕСТВО</translation>
    </message>
    <message>
        <source>change the quantity of a position</source>
        <translation>изменить количество в позиции</translation>
    </message>
    <message>
        <source>POSITION</source>
        <translation>ПОЗИЦИЯ</translation>
    </message>
    <message>
        <source>storno a position, after a question</source>
        <translation>сторнировать позицию, с вопросом</translation>
    </message>
    <message>
        <source>POSITION PART...</source>
        <translation>ПОЗИЦИЯ ЧАСТЬ...</translation>
    </message>
    <message>
        <source>take parts off as new positions; the rest stays</source>
        <translation>отделить части новыми позициями; остаток остаётся</translation>
    </message>
    <message>
        <source>POSITION POSITION...</source>
        <translation>ПОЗИЦИЯ ПОЗИЦИЯ...</translation>
    </message>
    <message>
        <source>put positions of one article into the first</source>
        <translation>соединить позиции одного товара в первой</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>НОМЕР</translation>
    </message>
    <message>
        <source>attach an order</source>
        <translation>добавить заказ</translation>
    </message>
    <message>
        <source>add a soft-check</source>
        <translation>добавить софт-чек</translation>
    </message>
    <message>
        <source>go to subtotal</source>
        <translation>перейти к подытогу</translation>
    </message>
    <message>
        <source>[MONEY]</source>
        <translation>[ДЕНЬГИ]</translation>
    </message>
    <message>
        <source>pay and close, from subtotal or at once; exactly if no money is named</source>
        <translation>оплатить и закрыть, с подытога или сразу; без суммы — ровно</translation>
    </message>
    <message>
        <source>cancel the receipt, after a question</source>
        <translation>отменить чек, с вопросом</translation>
    </message>
    <message>
        <source>a position number is missing</source>
        <translation>не назван номер позиции</translation>
    </message>
    <message>
        <source>a number is missing</source>
        <translation>не названо число</translation>
    </message>
    <message>
        <source>an amount of money is missing</source>
        <translation>не названа сумма</translation>
    </message>
    <message>
        <source>a section is not closed with &quot;]&quot;</source>
        <translation>раздел не закрыт знаком &quot;]&quot;</translation>
    </message>
    <message>
        <source>neither [SECTION] nor KEY=VALUE</source>
        <translation>это не [РАЗДЕЛ] и не КЛЮЧ=ЗНАЧЕНИЕ</translation>
    </message>
    <message>
        <source>there is no [SECTION] above it</source>
        <translation>выше нет [РАЗДЕЛА]</translation>
    </message>
    <message>
        <source>[KEY VALUE]</source>
        <translation>[КЛЮЧ ЗНАЧЕНИЕ]</translation>
    </message>
    <message>
        <source>change a setting, for which the till is switched off and on; or list all</source>
        <translation>изменить настройку, выключив и включив кассу; или показать все</translation>
    </message>
    <message>
        <source>standard input:%1: %2: %3</source>
        <translation>стандартный ввод:%1: %2: %3</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <translation>не хватает %1</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is neither true nor false</source>
        <translation>%1: &quot;%2&quot; — это не true и не false</translation>
    </message>
    <message>
        <source>no setting &quot;%1&quot;</source>
        <translation>нет настройки &quot;%1&quot;</translation>
    </message>
    <message>
        <source>no section [%1]; there is [%2]</source>
        <translation>нет раздела [%1]; есть [%2]</translation>
    </message>
    <message>
        <source>no setting &quot;%1&quot;; did you mean &apos;%2&apos;?</source>
        <translation>нет настройки &quot;%1&quot;; может быть, %2?</translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation>отказано: %1</translation>
    </message>
    <message>
        <source>nobody answered &quot;%Q&quot;; &apos;answer yes&apos; before it would take it</source>
        <translation>никто не ответил на &quot;%Q&quot;; answer yes перед командой ответит</translation>
    </message>
    <message>
        <source>no answer was given to: %1</source>
        <translation>нет ответа на: %1</translation>
    </message>
    <message>
        <source>%1 answer(s) were given that nobody asked for</source>
        <translation>лишних ответов: %1</translation>
    </message>
    <message>
        <source>No article contains &quot;%1&quot;</source>
        <translation>Нет товаров, в которых есть &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1: expected %2, found %3</source>
        <translation>%1: ожидалось %2, есть %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be expected; try &apos;help expect&apos;</source>
        <translation>&quot;%1&quot; нельзя ожидать; см. help expect</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be expected; did you mean &apos;%2&apos;?</source>
        <translation>&quot;%1&quot; нельзя ожидать; может быть, %2?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a position number</source>
        <translation>&quot;%1&quot; — это не номер позиции</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number with at most three decimals (1.5 or 1,5)</source>
        <translation>&quot;%1&quot; — это не число не более чем с тремя знаками (1.5 или 1,5)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an amount of money (12.50 or 12,50)</source>
        <translation>&quot;%1&quot; — это не сумма (12.50 или 12,50)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of: %2</source>
        <translation>&quot;%1&quot; — ничто из: %2</translation>
    </message>
    <message>
        <source>no command &quot;%1&quot;; try &apos;help&apos;</source>
        <translation>нет команды &quot;%1&quot;; список — help</translation>
    </message>
    <message>
        <source>no command &quot;%1&quot;; did you mean &apos;%2&apos;?</source>
        <translation>нет команды &quot;%1&quot;; может быть, %2?</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>пишется так: %1</translation>
    </message>
    <message>
        <source>usage: %1 %L2</source>
        <translation>пишется так: %1 %L2</translation>
    </message>
    <message>
        <source>%1: brought to the format of this till; as it was before, it is in %2</source>
        <translation>%1: переведена в формат этой кассы; прежняя копия — %2</translation>
    </message>
    <message>
        <source>The open receipt is kept.</source>
        <translation>Открытый чек сохранён.</translation>
    </message>
    <message>
        <source>Ctrl-C once more leaves the till</source>
        <translation>ещё раз Ctrl-C — выход из кассы</translation>
    </message>
    <message>
        <source>The locale is not UTF-8: texts are written in UTF-8 all the same</source>
        <translation>Локаль не UTF-8: тексты всё равно пишутся в UTF-8</translation>
    </message>
    <message>
        <source>the register knows no such action</source>
        <translation>касса не знает такого действия</translation>
    </message>
    <message>
        <source>no quantity was given</source>
        <translation>количество не задано</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ФАЙЛ</translation>
    </message>
    <message>
        <source>write this receipt as a script, which expects what it did</source>
        <translation>записать этот чек сценарием с ожиданиями того, что он сделал</translation>
    </message>
    <message>
        <source>no receipt was opened since the till was started: nothing to save</source>
        <translation>с запуска кассы чек не открывали: записывать нечего</translation>
    </message>
    <message>
        <source>%1: %2 command(s), %3 expectation(s)</source>
        <translation>%1: команд: %2, ожиданий: %3</translation>
    </message>
    <message>
        <source>declined</source>
        <translation>отклонено</translation>
    </message>
    <message>
        <source>Opened</source>
        <translation>Открыт</translation>
    </message>
    <message>
        <source>no receipts</source>
        <translation>чеков нет</translation>
    </message>
    <message>
        <source>%1 pos.</source>
        <translation>%1 поз.</translation>
    </message>
    <message>
        <source>set apart: %1</source>
        <translation>отложен: %1</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>повреждён: %1</translation>
    </message>
    <message>
        <source>N none|stornoed|live|quantity Q|base Q|sum MONEY|article CODE|group none|FIRST...</source>
        <translation>N none|stornoed|live|quantity К|base К|sum ДЕНЬГИ|article КОД|group none|ПЕРВАЯ...</translation>
    </message>
    <message>
        <source>how often the last command told the loyalty system of the receipt</source>
        <translation>сколько раз последняя команда сообщила о чеке системе лояльности</translation>
    </message>
    <message>
        <source>tara control is ready</source>
        <translation>контроль тары готов</translation>
    </message>
    <message>
        <source>Paused: something is being entered</source>
        <translation>Остановлено: идёт ввод</translation>
    </message>
    <message>
        <source>The recording is not saved. Drop it?</source>
        <translation>Запись не сохранена. Отбросить её?</translation>
    </message>
    <message>
        <source>See to what is named, room on the disk say, and do the command again</source>
        <translation>Устраните названную причину (например, освободите место на диске) и повторите команду</translation>
    </message>
    <message>
        <source>The script could not be saved</source>
        <translation>Сценарий не удалось сохранить</translation>
    </message>
    <message>
        <source>Delete the last sign</source>
        <translation>Стереть последний знак</translation>
    </message>
    <message>
        <source>Code, or 3*code</source>
        <translation>Код или 3*код</translation>
    </message>
    <message>
        <source>Scan or type a code and press Enter. A number and * before it is the quantity; for a tile it is typed here too.</source>
        <translation>Сканируйте или наберите код и нажмите Enter. Число и * перед ним — количество; для плитки оно набирается здесь же.</translation>
    </message>
    <message>
        <source>Search (F3)</source>
        <translation>Поиск (F3)</translation>
    </message>
    <message>
        <source>Articles</source>
        <translation>Товары</translation>
    </message>
    <message>
        <source>Position %1: %2</source>
        <translation>Позиция %1: %2</translation>
    </message>
    <message>
        <source>Given %1 · change %2</source>
        <translation>Получено %1 · сдача %2</translation>
    </message>
    <message>
        <source>In %1, up to three decimals</source>
        <translation>Единица: %1; до трёх знаков после точки</translation>
    </message>
    <message>
        <source>In pieces of %1, up to three decimals</source>
        <translation>В штуках по %1, до трёх знаков после точки</translation>
    </message>
    <message>
        <source>No article contains &quot;%1&quot;: clear the search</source>
        <translation>Нет товаров, содержащих &quot;%1&quot;: очистите поиск</translation>
    </message>
    <message>
        <source>This group has no articles: choose &quot;%L1&quot;</source>
        <translation>В этой группе нет товаров: выберите &quot;%L1&quot;</translation>
    </message>
    <message>
        <source>No article of this group contains &quot;%1&quot;: choose &quot;%L2&quot;, or clear the search</source>
        <translation>В этой группе нет товаров, содержащих &quot;%1&quot;: выберите &quot;%L2&quot; или очистите поиск</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a quantity: scan or type a code behind it, or touch a tile</source>
        <translation>&quot;%1&quot; — это количество: отсканируйте или введите за ним код либо коснитесь плитки</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Tara</source>
        <translation>Тара</translation>
    </message>
    <message>
        <source>Into tara</source>
        <translation>В тару</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Прочее</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Количество</translation>
    </message>
    <message>
        <source>Storno</source>
        <translation>Сторно</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Разделить</translation>
    </message>
    <message>
        <source>Unite</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Заказ</translation>
    </message>
    <message>
        <source>Soft-check</source>
        <translation>Софт-чек</translation>
    </message>
    <message>
        <source>New receipt</source>
        <translation>Новый чек</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Возврат</translation>
    </message>
    <message>
        <source>Cancel receipt</source>
        <translation>Отмена чека</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Подытог</translation>
    </message>
    <message>
        <source>Pay</source>
        <translation>Оплата</translation>
    </message>
    <message>
        <source>Select one position in the receipt</source>
        <translation>Выберите одну позицию чека</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>«%1» — не число</translation>
    </message>
    <message>
        <source>Quantity of position %1</source>
        <translation>Количество в позиции %1</translation>
    </message>
    <message>
        <source>In pieces, up to three decimals</source>
        <translation>В штуках, до трёх знаков после точки</translation>
    </message>
    <message>
        <source>Parts to split off position %1</source>
        <translation>Части, на которые делится позиция %1</translation>
    </message>
    <message>
        <source>As &quot;1+0.5&quot;; what is left stays in the position</source>
        <translation>Например, 1+0.5; остаток останется в позиции</translation>
    </message>
    <message>
        <source>Number of the order</source>
        <translation>Номер заказа</translation>
    </message>
    <message>
        <source>Number of the soft-check</source>
        <translation>Номер софт-чека</translation>
    </message>
    <message>
        <source>To pay: %1. Money given</source>
        <translation>К оплате: %1. Получено</translation>
    </message>
    <message>
        <source>As it stands, the sum is paid exactly</source>
        <translation>Если не менять, сумма оплачивается точно</translation>
    </message>
    <message>
        <source>Changes move smoothly</source>
        <translation>Плавные изменения</translation>
    </message>
    <message>
        <source>Till</source>
        <translation>Касса</translation>
    </message>
    <message>
        <source>Language (Ctrl+L)</source>
        <translation>Язык (Ctrl+L)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>at work, please wait</source>
        <translation>касса работает, подождите</translation>
    </message>
    <message>
        <source>tara is controlled</source>
        <translation>тара под контролем</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Ввод</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>The till could not be switched on</source>
        <translation>Кассу не удалось включить</translation>
    </message>
    <message>
        <source>The command came to nothing; the receipt is as it was before</source>
        <translation>Команда не выполнена; чек остался прежним</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Что случилось</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Где</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Что делать</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Попробовать снова</translation>
    </message>
    <message>
        <source>Back to the receipt</source>
        <translation>Вернуться к чеку</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Вопрос</translation>
    </message>
    <message>
        <source>stornoed</source>
        <translation>сторнировано</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Чек</translation>
    </message>
    <message>
        <source>no tara in the receipt</source>
        <translation>в чеке нет тары</translation>
    </message>
    <message>
        <source>What happened, command by command</source>
        <translation>Что произошло, команда за командой</translation>
    </message>
    <message>
        <source>Filter: what the lines contain</source>
        <translation>Фильтр: что содержат строки</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Следить</translation>
    </message>
    <message>
        <source>Unfold the newest command, and fold the one before</source>
        <translation>Раскрывать последнюю команду, а предыдущую сворачивать</translation>
    </message>
    <message>
        <source>Copy as JSON</source>
        <translation>Копировать как JSON</translation>
    </message>
    <message>
        <source>Copy the lines that a trace has of what is selected, or of all that is shown</source>
        <translation>Скопировать строки трассы о выделенном, а без выделения — обо всём, что показано</translation>
    </message>
    <message>
        <source>The last %1 commands are kept.</source>
        <translation>Хранятся последние команды: %1.</translation>
    </message>
    <message>
        <source>The last %1 commands are kept; %2 before them are gone.</source>
        <translation>Хранятся последние команды: %1; более ранних забыто: %2.</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Что произошло</translation>
    </message>
    <message>
        <source>What came of it</source>
        <translation>Чем кончилось</translation>
    </message>
    <message>
        <source>event 19: position %1 was added</source>
        <translation>событие 19: добавлена поз. %1</translation>
    </message>
    <message>
        <source>event 21: position %1 was stornoed</source>
        <translation>событие 21: сторнирована поз. %1</translation>
    </message>
    <message>
        <source>event 26: the cashier changed the quantity of position %1</source>
        <translation>событие 26: кассир изменил количество поз. %1</translation>
    </message>
    <message>
        <source>event 252: the program changed the quantity of position %1</source>
        <translation>событие 252: программа изменила количество поз. %1</translation>
    </message>
    <message>
        <source>event 29: an error</source>
        <translation>событие 29: ошибка</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>событие %1</translation>
    </message>
    <message>
        <source>asked for by the plugin: %1</source>
        <translation>по просьбе плагина: %1</translation>
    </message>
    <message>
        <source>trigger before %1, priority %2</source>
        <translation>триггер перед %1, приоритет %2</translation>
    </message>
    <message>
        <source>trigger after %1, priority %2</source>
        <translation>триггер после %1, приоритет %2</translation>
    </message>
    <message>
        <source>log: %1</source>
        <translation>журнал: %1</translation>
    </message>
    <message>
        <source>position %1: %2, stornoed</source>
        <translation>поз. %1: %2, сторнирована</translation>
    </message>
    <message>
        <source>position %1: %2 × %3</source>
        <translation>поз. %1: %2 × %3</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>и ещё %1</translation>
    </message>
    <message>
        <source>data of %1: %2</source>
        <translation>данные %1: %2</translation>
    </message>
    <message>
        <source>receipt %1: %2, total %3</source>
        <translation>чек %1: %2, итого %3</translation>
    </message>
    <message>
        <source>another receipt, or none, is the current one</source>
        <translation>текущим стал другой чек или никакой</translation>
    </message>
    <message>
        <source>receipt %1 is taken up</source>
        <translation>взят чек %1</translation>
    </message>
    <message>
        <source>the document is switched on again</source>
        <translation>документ снова включён</translation>
    </message>
    <message>
        <source>the document is switched off</source>
        <translation>документ выключен</translation>
    </message>
    <message>
        <source>the loyalty system is told</source>
        <translation>сообщено системе лояльности</translation>
    </message>
    <message>
        <source>the till is switched on</source>
        <translation>касса включена</translation>
    </message>
    <message>
        <source>script %1, line %2</source>
        <translation>сценарий %1, строка %2</translation>
    </message>
    <message>
        <source>script %1 holds</source>
        <translation>сценарий %1 выполнен</translation>
    </message>
    <message>
        <source>script %1 does not hold: %2</source>
        <translation>сценарий %1 не выполнен: %2</translation>
    </message>
    <message>
        <source>done</source>
        <translation>сделано</translation>
    </message>
    <message>
        <source>mistake</source>
        <translation>ошибка</translation>
    </message>
    <message>
        <source>not done</source>
        <translation>не сделано</translation>
    </message>
    <message>
        <source>not as expected</source>
        <translation>не так, как ожидалось</translation>
    </message>
    <message>
        <source>carried out</source>
        <translation>выполнено</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>продолжать</translation>
    </message>
    <message>
        <source>trigger under way</source>
        <translation>триггер выполняется</translation>
    </message>
    <message>
        <source>tara %1: no longer noted</source>
        <translation>тара %1: записи больше нет</translation>
    </message>
    <message>
        <source>tara %1: free %2 of %3</source>
        <translation>тара %1: свободно %2 из %3</translation>
    </message>
    <message>
        <source>tara %1: free %2 → %3 of %4</source>
        <translation>тара %1: свободно %2 → %3 из %4</translation>
    </message>
    <message>
        <source>goods %1: no longer noted</source>
        <translation>товар %1: записи больше нет</translation>
    </message>
    <message>
        <source>goods %1: in no tara</source>
        <translation>товар %1: не в таре</translation>
    </message>
    <message>
        <source>goods %1: in tara %2</source>
        <translation>товар %1: в таре %2</translation>
    </message>
    <message>
        <source>tara %1: capacity %2 → %3, free %4</source>
        <translation>тара %1: вместимость %2 → %3, свободно %4</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Ход событий</translation>
    </message>
    <message>
        <source>All receipts</source>
        <translation>Все чеки</translation>
    </message>
    <message>
        <source>Which receipts are listed</source>
        <translation>Какие чеки перечислены</translation>
    </message>
    <message>
        <source>Number of a receipt, and Enter</source>
        <translation>Номер чека и Enter</translation>
    </message>
    <message>
        <source>Read anew</source>
        <translation>Прочитать заново</translation>
    </message>
    <message>
        <source>Past receipts</source>
        <translation>Прошлые чеки</translation>
    </message>
    <message>
        <source>The receipt, to be read only</source>
        <translation>Чек, только для чтения</translation>
    </message>
    <message>
        <source>Receipts: %1</source>
        <translation>Чеков: %1</translation>
    </message>
    <message>
        <source>Receipts: %1; the newest %2 are listed, others open by their numbers</source>
        <translation>Чеков: %1; перечислены последние %2, остальные открываются по номеру</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of a receipt</source>
        <translation>«%1» — не номер чека</translation>
    </message>
    <message>
        <source>There is no receipt %1</source>
        <translation>Чека %1 нет</translation>
    </message>
    <message>
        <source>Receipt %1 is damaged: %2</source>
        <translation>Чек %1 повреждён: %2</translation>
    </message>
    <message>
        <source>does not hold</source>
        <translation>не выполнено</translation>
    </message>
    <message>
        <source>comes next</source>
        <translation>следующая</translation>
    </message>
    <message>
        <source>expected: %1</source>
        <translation>ожидалось: %1</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>есть: %1</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Сценарий</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Открыть…</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Шаг</translation>
    </message>
    <message>
        <source>Run to the line</source>
        <translation>Выполнить до строки</translation>
    </message>
    <message>
        <source>To the beginning</source>
        <translation>В начало</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Сохранить…</translation>
    </message>
    <message>
        <source>The lines of the script</source>
        <translation>Строки сценария</translation>
    </message>
    <message>
        <source>What the script printed</source>
        <translation>Что напечатал сценарий</translation>
    </message>
    <message>
        <source>A recording is under way: stop it</source>
        <translation>Идёт запись: остановите её</translation>
    </message>
    <message>
        <source>The script is running: let it pause</source>
        <translation>Сценарий выполняется: приостановите его</translation>
    </message>
    <message>
        <source>Open a script first</source>
        <translation>Сначала откройте сценарий</translation>
    </message>
    <message>
        <source>Select a line that is still to come</source>
        <translation>Выберите строку, до которой дело ещё не дошло</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Выполнить</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Остановить запись</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Open a script of the till&apos;s commands</source>
        <translation>Открыть сценарий из команд кассы</translation>
    </message>
    <message>
        <source>Play the script on this register; again, once it has ended</source>
        <translation>Выполнить сценарий на этой кассе; закончившийся — ещё раз</translation>
    </message>
    <message>
        <source>Carry out the next line</source>
        <translation>Выполнить следующую строку</translation>
    </message>
    <message>
        <source>Play up to the selected line, which comes next then</source>
        <translation>Выполнить всё до выбранной строки; она будет следующей</translation>
    </message>
    <message>
        <source>Begin with the first line again</source>
        <translation>Начать снова с первой строки</translation>
    </message>
    <message>
        <source>Keep what is done from now on as a script</source>
        <translation>Записывать всё, что делается дальше, как сценарий</translation>
    </message>
    <message>
        <source>Write what was recorded to a file</source>
        <translation>Сохранить записанное в файл</translation>
    </message>
    <message>
        <source>Nothing was recorded yet</source>
        <translation>Пока ничего не записано</translation>
    </message>
    <message>
        <source>Recording: %1 lines</source>
        <translation>Идёт запись, строк: %1</translation>
    </message>
    <message>
        <source>No script is open.</source>
        <translation>Сценарий не открыт.</translation>
    </message>
    <message>
        <source>%1: %2 of %3 lines</source>
        <translation>%1: строк %2 из %3</translation>
    </message>
    <message>
        <source>Open a script</source>
        <translation>Открыть сценарий</translation>
    </message>
    <message>
        <source>Recorded: %1 lines, to be saved</source>
        <translation>Записано строк: %1; их можно сохранить</translation>
    </message>
    <message>
        <source>Save the script</source>
        <translation>Сохранить сценарий</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Сценарии</translation>
    </message>
    <message>
        <source>Shelf of tara</source>
        <translation>Полка с тарой</translation>
    </message>
    <message>
        <source>a question that no command asked</source>
        <translation>вопрос, который не задала ни одна команда</translation>
    </message>
    <message>
        <source>%1: a script cannot say: %L2: %3</source>
        <translation>%1: сценарием не выразить: %L2: %3</translation>
    </message>
    <message>
        <source>%1: a script cannot say: %L2: %3; and %4 more, as it tells</source>
        <translation>%1: сценарием не выразить: %L2: %3; и ещё: %4, как сказано в нём</translation>
    </message>
    <message>
        <source>could not be done</source>
        <translation>не удалось выполнить</translation>
    </message>
    <message>
        <source>the receipt was opened before this begins</source>
        <translation>чек открыт раньше, чем началась запись</translation>
    </message>
    <message>
        <source>cannot be typed</source>
        <translation>нельзя набрать</translation>
    </message>
    <message>
        <source>… what came behind %1 MiB is left out</source>
        <translation>… всё после %1 МиБ опущено</translation>
    </message>
    <message>
        <source>hangs: ended by SIGKILL after %1 s</source>
        <translation>зависание: через %1 с завершён сигналом SIGKILL</translation>
    </message>
    <message>
        <source>interrupted by %1</source>
        <translation>прерван сигналом %1</translation>
    </message>
    <message>
        <source>crashed: %1</source>
        <translation>аварийное завершение: %1</translation>
    </message>
    <message>
        <source>the process ended with status %1 before the script</source>
        <translation>процесс завершился со статусом %1 раньше сценария</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>не прошёл</translation>
    </message>
    <message>
        <source>not ended</source>
        <translation>прерван</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>неверен</translation>
    </message>
    <message>
        <source>not begun</source>
        <translation>не начат</translation>
    </message>
    <message>
        <source>script</source>
        <translation>сценарий</translation>
    </message>
    <message>
        <source>command</source>
        <translation>команда</translation>
    </message>
    <message>
        <source>expected</source>
        <translation>ожидается</translation>
    </message>
    <message>
        <source>found</source>
        <translation>найдено</translation>
    </message>
    <message>
        <source>checks nothing, as it expects nothing</source>
        <translation>ничего не проверяет, так как ничего не ожидает</translation>
    </message>
    <message>
        <source>%1 of %2 scripts held</source>
        <translation>прошло сценариев: %1 из %2</translation>
    </message>
    <message>
        <source>expectations: %1</source>
        <translation>проверок: %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>не прошло: %1</translation>
    </message>
    <message>
        <source>%1 wrong</source>
        <translation>неверных: %1</translation>
    </message>
    <message>
        <source>%1 interrupted</source>
        <translation>прервано: %1</translation>
    </message>
    <message>
        <source>%1 not played</source>
        <translation>не сыграно: %1</translation>
    </message>
    <message>
        <source>stands behind &apos;quit&apos;, where nothing is carried out</source>
        <translation>стоит после &apos;quit&apos;, где ничего не выполняется</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is more than %2, the greatest amount of money</source>
        <translation>&quot;%1&quot; больше наибольшей суммы, %2</translation>
    </message>
    <message>
        <source>The database is in memory: there is no file in which past receipts could be looked up</source>
        <translation>База данных в памяти: нет файла, в котором можно найти прошлые чеки</translation>
    </message>
</context>
</TS>
