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
        <source>nobody answered &quot;%1&quot;; &apos;answer yes&apos; before it would take it</source>
        <translation>никто не ответил на &quot;%1&quot;; answer yes перед командой ответит</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was answered no</source>
        <translation>на &quot;%1&quot; ответили нет</translation>
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
</context>
</TS>
