<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="ru">
<!-- By key; the Russian texts stand in the code. -->
<context>
    <name>messages</name>
    <message>
        <source>packingControlTaraUsedDiffGoods</source>
        <translation>The tara is used by different goods.
Changing the quantity is not allowed</translation>
    </message>
    <message>
        <source>packingControlTaraAlmostFull</source>
        <translation>The tara is partly filled.
Changing the quantity is not allowed</translation>
    </message>
    <message>
        <source>packingControlSaleEmptyTara</source>
        <translation>There is empty tara in the receipt.
Storno the tara and go on to payment?</translation>
    </message>
    <message>
        <source>dialogChoiceOk</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>dialogChoiceCancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>tillStornoPosition</source>
        <translation>Storno the position?</translation>
    </message>
    <message>
        <source>tillCancelReceipt</source>
        <translation>Cancel the receipt?</translation>
    </message>
    <message>
        <source>tillNotEnoughMoney</source>
        <translation>Not enough money to pay</translation>
    </message>
    <message>
        <source>tillCannotFollow</source>
        <translation>The goods in the tara stay as they are: a limit of quantity or sum</translation>
    </message>
    <message>
        <source>tillReceiptEmpty</source>
        <translation>There are no positions in the receipt</translation>
    </message>
    <message>
        <source>tillDeclined</source>
        <translation>&quot;%Q&quot; was answered no</translation>
    </message>
    <message>
        <source>tillYes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>tillNo</source>
        <translation>No</translation>
    </message>
    <message>
        <source>tillChange</source>
        <translation>Change %1</translation>
    </message>
    <message>
        <source>tillBusy</source>
        <translation>a command is under way</translation>
    </message>
    <message>
        <source>tillReceiptIsOpen</source>
        <translation>a receipt is open already: pay or cancel it first</translation>
    </message>
    <message>
        <source>tillNoReceipt</source>
        <translation>no receipt is open</translation>
    </message>
    <message>
        <source>tillNoArticle</source>
        <translation>no article &quot;%1&quot; in the catalogue</translation>
    </message>
    <message>
        <source>tillNoArticleButNear</source>
        <translation>no article &quot;%1&quot; in the catalogue; did you mean &apos;%2&apos;?</translation>
    </message>
    <message>
        <source>tillNoPosition</source>
        <translation>the receipt has no position %1</translation>
    </message>
    <message>
        <source>tillPositionStornoed</source>
        <translation>position %1 is stornoed</translation>
    </message>
    <message>
        <source>tillCountTooSmall</source>
        <translation>the quantity must be above 0</translation>
    </message>
    <message>
        <source>tillCountNegative</source>
        <translation>the quantity must not be below 0</translation>
    </message>
    <message>
        <source>tillCountTooGreat</source>
        <translation>the quantity must not be above %1</translation>
    </message>
    <message>
        <source>tillSumTooGreat</source>
        <translation>the sum of the receipt must not be above %1</translation>
    </message>
    <message>
        <source>tillNoParts</source>
        <translation>at least one part must be named</translation>
    </message>
    <message>
        <source>tillPartTooSmall</source>
        <translation>each part must be above 0</translation>
    </message>
    <message>
        <source>tillPartsTooGreat</source>
        <translation>position %1 holds less than the parts</translation>
    </message>
    <message>
        <source>tillTooFewPositions</source>
        <translation>at least two positions must be named</translation>
    </message>
    <message>
        <source>tillPositionTwice</source>
        <translation>position %1 is named twice</translation>
    </message>
    <message>
        <source>tillOtherArticles</source>
        <translation>positions %1 and %2 are of different articles</translation>
    </message>
    <message>
        <source>tillOrderNumberless</source>
        <translation>the order has no number</translation>
    </message>
    <message>
        <source>tillSoftCheckNumberless</source>
        <translation>the soft-check has no number</translation>
    </message>
    <message>
        <source>tillHasOrder</source>
        <translation>the receipt has order %1 already</translation>
    </message>
    <message>
        <source>tillHasSoftCheck</source>
        <translation>the receipt has soft-check %1 already</translation>
    </message>
    <message>
        <source>tillNotStored</source>
        <translation>could not be stored</translation>
    </message>
    <message>
        <source>tillSale</source>
        <translation>Receipt</translation>
    </message>
    <message>
        <source>tillReturn</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>tillDocument</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>tillOpen</source>
        <translation>open</translation>
    </message>
    <message>
        <source>tillSubtotal</source>
        <translation>subtotal</translation>
    </message>
    <message>
        <source>tillClosed</source>
        <translation>closed</translation>
    </message>
    <message>
        <source>tillCancelled</source>
        <translation>cancelled</translation>
    </message>
    <message>
        <source>tillOrder</source>
        <translation>order %1</translation>
    </message>
    <message>
        <source>tillSoftCheck</source>
        <translation>soft-check %1</translation>
    </message>
    <message>
        <source>tillTaraSuspended</source>
        <translation>tara control suspended</translation>
    </message>
    <message>
        <source>tillTaraAbsent</source>
        <translation>no tara control</translation>
    </message>
    <message>
        <source>tillNumber</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>tillArticle</source>
        <translation>Article</translation>
    </message>
    <message>
        <source>tillQuantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>tillPrice</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>tillSum</source>
        <translation>Sum</translation>
    </message>
    <message>
        <source>tillTotal</source>
        <translation>TOTAL</translation>
    </message>
    <message>
        <source>tillNoLines</source>
        <translation>no positions</translation>
    </message>
    <message>
        <source>tillPieces</source>
        <translation>pcs</translation>
    </message>
    <message>
        <source>tillTaraEmpty</source>
        <translation>empty</translation>
    </message>
    <message>
        <source>tillTaraFree</source>
        <translation>free %1</translation>
    </message>
    <message>
        <source>tillTaraFull</source>
        <translation>full</translation>
    </message>
    <message>
        <source>tillTaraOverfull</source>
        <translation>over-full by %1</translation>
    </message>
    <message>
        <source>tillInTara</source>
        <translation>in tara</translation>
    </message>
    <message>
        <source>tillShare</source>
        <translation>pos. %1 — %2</translation>
    </message>
    <message>
        <source>tillShareOfGone</source>
        <translation>removed tara — %1</translation>
    </message>
    <message>
        <source>tillUnplaced</source>
        <translation>not placed %1</translation>
    </message>
    <message>
        <source>tillOverplaced</source>
        <translation>noted in excess %1</translation>
    </message>
</context>
</TS>
