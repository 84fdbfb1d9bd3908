// Moves the tiles of this page: by mouse, by pen, by as many fingers as there are, and by the arrow keys (with
// Shift one pixel at a time). A tile in hand comes to the front; the picture stays behind the tiles.
var CURSOR_POINTER = "pointer";

// SET_DRAGGABLE(cursor, id, id, ...) lets the blocks with these ids be moved. Unknown ids are left alone.
var SET_DRAGGABLE = (function () {
  "use strict";
  var STEP = 10;
  var ARROWS = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] };
  var front = 0;

  function MOVE(block, left, top) {
    block.style.left = Math.max(0, Math.round(left)) + "px";
    block.style.top = Math.max(0, Math.round(top)) + "px";
  }

  function RAISE(block) {
    if (block.id !== "BGPIC") {
      front += 1;
      block.style.zIndex = front;
    }
  }

  // Each block is in one hand at most: further fingers may hold other blocks.
  function DDObj(block, cursor) {
    var hand = null;

    function PICK(event) {
      if (hand || event.button !== 0) {
        return;
      }
      hand = { pointer: event.pointerId, x: event.pageX - block.offsetLeft, y: event.pageY - block.offsetTop };
      block.setPointerCapture(event.pointerId);
      block.focus({ preventScroll: true });
      RAISE(block);
      event.preventDefault();
    }

    function DRAG(event) {
      if (hand && hand.pointer === event.pointerId) {
        MOVE(block, event.pageX - hand.x, event.pageY - hand.y);
      }
    }

    function DROP(event) {
      if (hand && hand.pointer === event.pointerId) {
        hand = null;
      }
    }

    function KEY(event) {
      var way = ARROWS[event.key];
      if (way && !event.ctrlKey && !event.altKey && !event.metaKey) {
        var step = event.shiftKey ? 1 : STEP;
        RAISE(block);
        MOVE(block, block.offsetLeft + way[0] * step, block.offsetTop + way[1] * step);
        event.preventDefault();
      }
    }

    block.tabIndex = 0;
    block.style.cursor = cursor;
    block.style.touchAction = "none";
    block.style.userSelect = "none";
    block.style.whiteSpace = "nowrap";
    block.addEventListener("pointerdown", PICK);
    block.addEventListener("pointermove", DRAG);
    block.addEventListener("pointerup", DROP);
    block.addEventListener("pointercancel", DROP);
    block.addEventListener("keydown", KEY);
    block.addEventListener("dragstart", function (event) {
      event.preventDefault();
    });
  }

  return function (cursor) {
    for (var i = 1; i < arguments.length; i += 1) {
      var block = document.getElementById(arguments[i]);
      if (block) {
        DDObj(block, cursor);
      }
    }
  };
}());
