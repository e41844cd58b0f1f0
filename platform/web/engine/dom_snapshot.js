// Gives the page's document as the text that dom_snapshot.h describes; the empty text where no page was
// loaded and for a page that is beyond all measure. Runs in a world of its own, where nothing that the
// page's scripts replaced is seen. What the page's elements are named is seen there too, and a form's or a
// document's own properties can be hidden by such names, so every property is read through the getter of the
// class that defines it.
(function () {
    'use strict';

    const largestNodeCount = 1000000;
    const largestTextLength = 64 * 1024 * 1024;

    function reader(type, property) {
        const get = Object.getOwnPropertyDescriptor(type.prototype, property).get;
        return (object) => get.call(object);
    }

    const firstChild = reader(Node, 'firstChild');
    const nextSibling = reader(Node, 'nextSibling');
    const parentNode = reader(Node, 'parentNode');
    const nodeName = reader(Node, 'nodeName');
    const nodeType = reader(Node, 'nodeType');
    const data = reader(CharacterData, 'data');
    const className = reader(Element, 'className');
    const anchorName = reader(HTMLAnchorElement, 'name');
    const imageSource = reader(HTMLImageElement, 'src');
    const documentUrl = reader(Document, 'URL');
    const attributeNames = (element) => Element.prototype.getAttributeNames.call(element);
    const attribute = (element, name) => Element.prototype.getAttribute.call(element, name);

    const characterData = [Node.TEXT_NODE, Node.CDATA_SECTION_NODE, Node.PROCESSING_INSTRUCTION_NODE,
                           Node.COMMENT_NODE];

    const other = 0, anchor = 2, image = 5;
    const classes = new Map([
        [Text.prototype, 1],
        [HTMLAnchorElement.prototype, anchor],
        [HTMLTableRowElement.prototype, 3],
        [HTMLTableCellElement.prototype, 4],
        [HTMLImageElement.prototype, image],
        [HTMLLIElement.prototype, 6],
        [HTMLBRElement.prototype, 7],
    ]);

    // The engine has documents of its own: an empty one before the first load, one that tells of an error
    // after a failed one.
    const url = documentUrl(document);
    if (url === '' || url === 'about:blank' || url.startsWith('chrome-error:')) {
        return '';
    }

    let textLength = 0;

    function attributesOf(element) {
        const flat = [];
        for (const name of attributeNames(element)) {
            const value = attribute(element, name);
            textLength += name.length + value.length;
            flat.push(name, value);
        }
        return flat;
    }

    function columns(node, parent) {
        const exactClass = classes.get(Object.getPrototypeOf(node)) || other;
        const type = nodeType(node);
        if (characterData.includes(type)) {
            textLength += data(node).length;
            return [parent, exactClass, nodeName(node), data(node)];
        }
        if (type !== Node.ELEMENT_NODE) {
            return [parent, exactClass, nodeName(node)];
        }
        const isHtml = node instanceof HTMLElement;
        const row = [parent, exactClass, nodeName(node), null, isHtml ? 1 : 0, isHtml ? className(node) : '',
                     attributesOf(node)];
        if (exactClass === anchor) {
            row.push(anchorName(node));
        } else if (exactClass === image) {
            row.push('', /^[\0- ]*$/.test(attribute(node, 'src') ?? '') ? '' : imageSource(node));
        }
        return row;
    }

    const nodes = [];
    const parents = [];
    let parent = -1;
    let node = firstChild(document);
    while (node !== null) {
        nodes.push(columns(node, parent));
        if (nodes.length > largestNodeCount || textLength > largestTextLength) {
            return '';
        }
        const child = firstChild(node);
        if (child !== null) {
            parents.push(parent);
            parent = nodes.length - 1;
            node = child;
            continue;
        }
        let next = nextSibling(node);
        while (next === null && parents.length > 0) {
            node = parentNode(node);
            parent = parents.pop();
            next = nextSibling(node);
        }
        node = next;
    }
    return JSON.stringify({ url: url, nodes: nodes });
})()
